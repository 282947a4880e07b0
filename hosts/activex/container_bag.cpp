#include "container_bag.h"

#include <memory>
#include <vector>

#include "com_variant.h"
#include "picture/win32/ole_picture.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Font.h"
#include "vorlex/Picture.h"
#include "wide_text.h"

namespace vorlex::activex {

namespace {

// A standard font object with the font's members.
IDispatch* SystemFont(const Font& font) {
  const std::wstring name = ToWide(font.Name());
  FONTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.lpstrName = const_cast<LPOLESTR>(name.c_str());
  description.cySize.int64 = static_cast<LONGLONG>(font.Size() * 10000.0 + (font.Size() >= 0 ? 0.5 : -0.5));
  description.sWeight = font.Weight();
  description.sCharset = font.Charset();
  description.fItalic = font.Italic();
  description.fUnderline = font.Underline();
  description.fStrikethrough = font.Strikethrough();
  IDispatch* dispatch = nullptr;
  if (FAILED(OleCreateFontIndirect(&description, IID_IDispatch, reinterpret_cast<void**>(&dispatch))))
    RaiseError(kErrOutOfMemory);
  return dispatch;
}

// The platform's picture object for a picture, made from its file when it has none.
IDispatch* SystemPicture(const Picture& picture) {
  IDispatch* dispatch = nullptr;
  if (const auto* platform = dynamic_cast<const picture::OlePicture*>(&picture)) {
    if (SUCCEEDED(platform->Interface()->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch))))
      return dispatch;
  }
  const std::vector<uint8_t> file = picture.SaveAsFile();
  if (file.empty()) return nullptr;
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, file.size());
  if (!memory) RaiseError(kErrOutOfMemory);
  memcpy(GlobalLock(memory), file.data(), file.size());
  GlobalUnlock(memory);
  IStream* stream = nullptr;
  if (FAILED(CreateStreamOnHGlobal(memory, TRUE, &stream))) {
    GlobalFree(memory);
    RaiseError(kErrOutOfMemory);
  }
  const HRESULT hr =
      OleLoadPicture(stream, static_cast<LONG>(file.size()), FALSE, IID_IDispatch, reinterpret_cast<void**>(&dispatch));
  stream->Release();
  if (FAILED(hr)) RaiseError(kErrInvalidPicture);
  return dispatch;
}

void ToContainerVariant(const Variant& value, VARIANT* out) {
  if (!value.IsObject() || !value.ToObject()) {
    ToComVariant(value, out);
    return;
  }
  const std::shared_ptr<Object> object = value.ToObject();
  V_VT(out) = VT_DISPATCH;
  if (const auto* font = dynamic_cast<const Font*>(object.get()))
    V_DISPATCH(out) = SystemFont(*font);
  else if (const auto* picture = dynamic_cast<const Picture*>(object.get()))
    V_DISPATCH(out) = SystemPicture(*picture);
  else
    RaiseError(kErrTypeMismatch);
}

}  // namespace

void ContainerBag::WriteProperty(const std::string& name, const Variant& value, const Variant& defaultValue) {
  if (EqualsDefault(value, defaultValue)) return;
  VARIANT written;
  VariantInit(&written);
  ToContainerVariant(value, &written);
  const std::wstring key = ToWide(name);
  const HRESULT hr = bag_.Write(key.c_str(), &written);
  VariantClear(&written);
  if (FAILED(hr)) RaiseError(kErrInvalidPropertyValue);
}

Variant ContainerBag::ReadProperty(const std::string& name, const Variant& defaultValue) {
  VARIANT read;
  VariantInit(&read);
  const std::wstring key = ToWide(name);
  if (FAILED(bag_.Read(key.c_str(), &read, log_)) || V_VT(&read) == VT_EMPTY) {
    VariantClear(&read);
    return defaultValue;
  }
  Variant value;
  try {
    value = FromComVariant(read);
  } catch (...) {
    VariantClear(&read);
    throw;
  }
  VariantClear(&read);
  return value;
}

}  // namespace vorlex::activex
