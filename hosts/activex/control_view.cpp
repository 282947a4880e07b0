// Painting: into the control's window on WM_PAINT, into another context for
// WM_PRINTCLIENT and IViewObject2::Draw (printing, a container's snapshot);
// mouse input from the window.

#include "vorlex_control.h"

namespace vorlex::activex {

void VorlexControl::OnWindowPaint() { Control().UserControl_Paint(); }

void VorlexControl::CopyPicture(HDC target, int x, int y, int width, int height) {
  Control().UserControl_Paint();
  const int sourceWidth = static_cast<int>(site_.ScaleWidth());
  const int sourceHeight = static_cast<int>(site_.ScaleHeight());
  if (width == sourceWidth && height == sourceHeight) {
    BitBlt(target, x, y, width, height, site_.DrawingDC(), 0, 0, SRCCOPY);
  } else {
    SetStretchBltMode(target, COLORONCOLOR);
    StretchBlt(target, x, y, width, height, site_.DrawingDC(), 0, 0, sourceWidth, sourceHeight, SRCCOPY);
  }
}

void VorlexControl::OnWindowPrint(HDC target) {
  CopyPicture(target, 0, 0, static_cast<int>(site_.ScaleWidth()), static_cast<int>(site_.ScaleHeight()));
}

void VorlexControl::OnWindowSize(int width, int height) { site_.SetClientSize(width, height); }

void VorlexControl::OnMouseUp(int16_t button, int16_t shift, float x, float y) {
  Control().UserControl_MouseUp(button, shift, x, y);
}

void VorlexControl::OnClick() { Control().UserControl_Click(); }
void VorlexControl::OnDblClick() { Control().UserControl_DblClick(); }

HRESULT VorlexControl::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC draw, LPCRECTL bounds, LPCRECTL,
                            BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!draw || !bounds) return E_INVALIDARG;
  CopyPicture(draw, bounds->left, bounds->top, bounds->right - bounds->left, bounds->bottom - bounds->top);
  return S_OK;
}

HRESULT VorlexControl::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors) {
  if (colors) *colors = nullptr;
  return S_FALSE;
}

HRESULT VorlexControl::Freeze(DWORD, LONG, void*, DWORD* freeze) {
  if (freeze) *freeze = 0;
  return E_NOTIMPL;
}

HRESULT VorlexControl::Unfreeze(DWORD) { return E_NOTIMPL; }

HRESULT VorlexControl::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  if (sink) sink->AddRef();
  if (viewSink_) viewSink_->Release();
  viewSink_ = sink;
  viewAspects_ = aspects;
  viewFlags_ = flags;
  return S_OK;
}

HRESULT VorlexControl::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects) *aspects = viewAspects_;
  if (flags) *flags = viewFlags_;
  if (sink) {
    *sink = viewSink_;
    if (viewSink_) viewSink_->AddRef();
  }
  return S_OK;
}

HRESULT VorlexControl::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) { return GetExtent(aspect, size); }

}  // namespace vorlex::activex
