#include "com_variant.h"

#include <memory>
#include <utility>
#include <vector>

#include "object_dispatch.h"
#include "picture/win32/ole_picture.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Font.h"
#include "wide_text.h"

namespace vorlex::activex {

namespace {

constexpr int32_t kErrInvalidUseOfNull = 94;

template <class T>
struct Released {
  T* p = nullptr;
  ~Released() {
    if (p) p->Release();
  }
};

// The bytes a platform picture saves itself as, kept for persistence.
std::vector<uint8_t> SavedBytes(IPicture* picture) {
  std::vector<uint8_t> bytes;
  Released<IStream> stream;
  if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream.p))) return bytes;
  LONG size = 0;
  if (FAILED(picture->SaveAsFile(stream.p, TRUE, &size)) || size <= 0) return bytes;
  HGLOBAL memory = nullptr;
  if (FAILED(GetHGlobalFromStream(stream.p, &memory))) return bytes;
  const auto* data = static_cast<const uint8_t*>(GlobalLock(memory));
  if (data) bytes.assign(data, data + size);
  GlobalUnlock(memory);
  return bytes;
}

// A font object of another maker: the control takes its attributes.
FontPtr FontFrom(IFont* font) {
  auto copy = std::make_shared<Font>();
  BSTR name = nullptr;
  if (SUCCEEDED(font->get_Name(&name))) copy->SetName(FromBstr(name));
  SysFreeString(name);
  CY size{};
  if (SUCCEEDED(font->get_Size(&size))) copy->SetSize(static_cast<double>(size.int64) / 10000.0);
  SHORT weight = 400;
  if (SUCCEEDED(font->get_Weight(&weight))) copy->SetWeight(weight);
  BOOL flag = FALSE;
  if (SUCCEEDED(font->get_Italic(&flag))) copy->SetItalic(flag != FALSE);
  if (SUCCEEDED(font->get_Underline(&flag))) copy->SetUnderline(flag != FALSE);
  if (SUCCEEDED(font->get_Strikethrough(&flag))) copy->SetStrikethrough(flag != FALSE);
  SHORT charset = 0;
  if (SUCCEEDED(font->get_Charset(&charset))) copy->SetCharset(charset);
  return copy;
}

Variant FromVariantData(VARTYPE type, const void* data) {
  switch (type) {
    case VT_EMPTY:
      return Variant();
    case VT_I2:
      return Variant(static_cast<int16_t>(*static_cast<const SHORT*>(data)));
    case VT_I4:
      return Variant(static_cast<int32_t>(*static_cast<const LONG*>(data)));
    case VT_R4:
      return Variant(*static_cast<const FLOAT*>(data));
    case VT_R8:
      return Variant(*static_cast<const DOUBLE*>(data));
    case VT_BOOL:
      return Variant::Boolean(*static_cast<const VARIANT_BOOL*>(data));
    case VT_BSTR:
      return Variant(FromBstr(*static_cast<const BSTR*>(data)));
    case VT_DISPATCH:
    case VT_UNKNOWN: {
      IUnknown* unknown = *static_cast<IUnknown* const*>(data);
      if (!unknown) return Variant(std::shared_ptr<Object>());
      Released<IDispatch> dispatch;
      if (FAILED(unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch.p))))
        RaiseError(kErrTypeMismatch);
      return Variant(ObjectFromDispatch(dispatch.p));
    }
    case VT_NULL:
      RaiseError(kErrInvalidUseOfNull);
    default:
      return Variant();
  }
}

// Other numeric kinds (Byte, Currency, Date, unsigned...) as Basic converts
// them: through Double.
Variant FromOtherKind(const VARIANT& value) {
  VARIANT converted;
  VariantInit(&converted);
  if (FAILED(VariantChangeType(&converted, const_cast<VARIANT*>(&value), 0, VT_R8))) RaiseError(kErrTypeMismatch);
  return Variant(converted.dblVal);
}

}  // namespace

std::string FromBstr(BSTR text) { return text ? ToUtf8(std::wstring_view(text, SysStringLen(text))) : std::string(); }

std::string FromWide(const wchar_t* text) { return text ? ToUtf8(text) : std::string(); }

BSTR ToBstr(const std::string& text) {
  const std::wstring wide = ToWide(text);
  BSTR result = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (!result) throw std::bad_alloc();
  return result;
}

Variant FromComVariant(const VARIANT& value) {
  const VARTYPE type = V_VT(&value);
  if (type == VT_ERROR && V_ERROR(&value) == DISP_E_PARAMNOTFOUND) return Variant::Missing();
  if (type == (VT_VARIANT | VT_BYREF)) return V_VARIANTREF(&value) ? FromComVariant(*V_VARIANTREF(&value)) : Variant();
  const VARTYPE base = type & ~VT_BYREF;
  const void* data = (type & VT_BYREF) ? V_BYREF(&value) : static_cast<const void*>(&value.iVal);
  switch (base) {
    case VT_EMPTY:
    case VT_NULL:
    case VT_I2:
    case VT_I4:
    case VT_R4:
    case VT_R8:
    case VT_BOOL:
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return FromVariantData(base, data);
    default:
      return FromOtherKind(value);
  }
}

void ToComVariant(const Variant& value, VARIANT* out) {
  switch (value.Type()) {
    case VarType::Empty:
      V_VT(out) = VT_EMPTY;
      break;
    case VarType::Missing:
      V_VT(out) = VT_ERROR;
      V_ERROR(out) = DISP_E_PARAMNOTFOUND;
      break;
    case VarType::Integer:
      V_VT(out) = VT_I2;
      V_I2(out) = value.ToInteger();
      break;
    case VarType::Long:
      V_VT(out) = VT_I4;
      V_I4(out) = value.ToLong();
      break;
    case VarType::Single:
      V_VT(out) = VT_R4;
      V_R4(out) = value.ToSingle();
      break;
    case VarType::Double:
      V_VT(out) = VT_R8;
      V_R8(out) = value.ToDouble();
      break;
    case VarType::Boolean:
      V_VT(out) = VT_BOOL;
      V_BOOL(out) = value.ToBoolean();
      break;
    case VarType::String:
      V_BSTR(out) = ToBstr(value.ToString());
      V_VT(out) = VT_BSTR;
      break;
    case VarType::Object:
      V_DISPATCH(out) = DispatchFromObject(value.ToObject());
      V_VT(out) = VT_DISPATCH;
      break;
  }
}

std::shared_ptr<Object> ObjectFromDispatch(IDispatch* dispatch) {
  if (!dispatch) return nullptr;
  if (std::shared_ptr<Object> ours = SharedObjectOf(dispatch)) return ours;
  Released<IPicture> picture;
  if (SUCCEEDED(dispatch->QueryInterface(IID_IPicture, reinterpret_cast<void**>(&picture.p)))) {
    std::vector<uint8_t> bytes = SavedBytes(picture.p);
    auto shared = std::make_shared<picture::OlePicture>(picture.p, std::move(bytes));
    picture.p = nullptr;  // the picture object holds the reference now
    return shared;
  }
  Released<IFont> font;
  if (SUCCEEDED(dispatch->QueryInterface(IID_IFont, reinterpret_cast<void**>(&font.p)))) return FontFrom(font.p);
  RaiseError(kErrTypeMismatch);
}

IDispatch* DispatchFromObject(const std::shared_ptr<Object>& object) {
  if (!object) return nullptr;
  if (const auto* platform = dynamic_cast<const picture::OlePicture*>(object.get())) {
    IDispatch* dispatch = nullptr;
    if (SUCCEEDED(platform->Interface()->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch))))
      return dispatch;
  }
  return NewObjectDispatch(object);
}

}  // namespace vorlex::activex
