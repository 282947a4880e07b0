// IQuickActivate: what a container would otherwise do in several calls (the
// client site, the view's advise sink, the event and change sinks) in one,
// answered with the control's status.

#include <cstddef>

#include "vorlex_control.h"

namespace vorlex::activex {

HRESULT VorlexControl::QuickActivate(QACONTAINER* container, QACONTROL* control) {
  if (!container || !control) return E_POINTER;
  if (container->cbSize < offsetof(QACONTAINER, pUnkEventSink) + sizeof(IUnknown*) ||
      control->cbSize < sizeof(QACONTROL))
    return E_INVALIDARG;
  const HRESULT hr = SetClientSite(container->pClientSite);
  if (FAILED(hr)) return hr;
  if (container->pAdviseSink) SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
  control->dwEventCookie = 0;
  if (container->pUnkEventSink) events_.Advise(container->pUnkEventSink, &control->dwEventCookie);
  control->dwPropNotifyCookie = 0;
  if (container->pPropertyNotifySink)
    propertyNotify_.Advise(container->pPropertyNotifySink, &control->dwPropNotifyCookie);
  GetMiscStatus(DVASPECT_CONTENT, &control->dwMiscStatus);
  control->dwViewStatus = VIEWSTATUS_OPAQUE;  // every pixel of the bar is painted
  control->dwPointerActivationPolicy = 0;
  return S_OK;
}

HRESULT VorlexControl::SetContentExtent(LPSIZEL size) { return SetExtent(DVASPECT_CONTENT, size); }

HRESULT VorlexControl::GetContentExtent(LPSIZEL size) { return GetExtent(DVASPECT_CONTENT, size); }

}  // namespace vorlex::activex
