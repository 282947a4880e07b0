#include "object_dispatch.h"

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "com_variant.h"
#include "module.h"
#include "vorlex/Automation.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Font.h"
#include "vorlex/Picture.h"

namespace vorlex::activex {

namespace {

struct MemberId {
  std::string_view name;
  DISPID dispid;
};

// The standard font and picture objects' dispatch identifiers.
constexpr MemberId kFontMembers[] = {{"Name", DISPID_FONT_NAME},       {"Size", DISPID_FONT_SIZE},
                                     {"Bold", DISPID_FONT_BOLD},       {"Italic", DISPID_FONT_ITALIC},
                                     {"Underline", DISPID_FONT_UNDER}, {"Strikethrough", DISPID_FONT_STRIKE},
                                     {"Weight", DISPID_FONT_WEIGHT},   {"Charset", DISPID_FONT_CHARSET}};
constexpr MemberId kPictureMembers[] = {{"Handle", DISPID_PICT_HANDLE},
                                        {"hPal", DISPID_PICT_HPAL},
                                        {"Type", DISPID_PICT_TYPE},
                                        {"Width", DISPID_PICT_WIDTH},
                                        {"Height", DISPID_PICT_HEIGHT}};

bool SameName(std::string_view a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  return true;
}

class ObjectDispatch final : public IDispatch {
 public:
  explicit ObjectDispatch(std::shared_ptr<Object> object)
      : object_(std::move(object)), isFont_(dynamic_cast<Font*>(object_.get()) != nullptr) {}

  const std::shared_ptr<Object>& Shared() const { return object_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == kObjectDispatchIid || (isFont_ && iid == IID_IFontDisp) ||
        (!isFont_ && iid == IID_IPictureDisp)) {
      *out = static_cast<IDispatch*>(this);
      AddRef();
      return S_OK;
    }
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&refs_)); }
  ULONG STDMETHODCALLTYPE Release() override {
    const long refs = InterlockedDecrement(&refs_);
    if (refs == 0) delete this;
    return static_cast<ULONG>(refs);
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    if (info) *info = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    HRESULT result = S_OK;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    const std::string name = FromWide(names[0]);
    for (const MemberId& m : Members())
      if (SameName(m.name, name)) ids[0] = m.dispid;
    if (ids[0] == DISPID_UNKNOWN || count > 1) result = DISP_E_UNKNOWNNAME;
    return result;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispid, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                                   EXCEPINFO* exception, UINT*) override {
    const std::string_view name = NameOf(dispid);
    if (name.empty()) return DISP_E_MEMBERNOTFOUND;
    try {
      const Variant object(object_);
      if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
        if (!params || params->cArgs != 1) return DISP_E_BADPARAMCOUNT;
        PutObjectMember(object, name, FromComVariant(params->rgvarg[0]));
        return S_OK;
      }
      if (params && params->cArgs != 0) return DISP_E_BADPARAMCOUNT;
      const Variant value = GetObjectMember(object, name);
      if (result) {
        VariantInit(result);
        ToComVariant(value, result);
      }
      return S_OK;
    } catch (const AutomationError& error) {
      if (exception) {
        *exception = EXCEPINFO{};
        exception->scode = static_cast<SCODE>(0x800A0000u + static_cast<unsigned>(error.Number()));
        exception->bstrDescription = ToBstr(error.Description());
      }
      return DISP_E_EXCEPTION;
    }
  }

 private:
  std::vector<MemberId> Members() const {
    if (isFont_) return {std::begin(kFontMembers), std::end(kFontMembers)};
    return {std::begin(kPictureMembers), std::end(kPictureMembers)};
  }
  std::string_view NameOf(DISPID dispid) const {
    for (const MemberId& m : Members())
      if (m.dispid == dispid) return m.name;
    return {};
  }

  std::shared_ptr<Object> object_;
  bool isFont_;
  long refs_ = 1;
  ModuleReference module_;
};

}  // namespace

IDispatch* NewObjectDispatch(std::shared_ptr<Object> object) { return new ObjectDispatch(std::move(object)); }

std::shared_ptr<Object> SharedObjectOf(IDispatch* dispatch) {
  if (!dispatch) return nullptr;
  IDispatch* ours = nullptr;
  if (FAILED(dispatch->QueryInterface(kObjectDispatchIid, reinterpret_cast<void**>(&ours))) || !ours) return nullptr;
  std::shared_ptr<Object> object = static_cast<ObjectDispatch*>(ours)->Shared();
  ours->Release();
  return object;
}

}  // namespace vorlex::activex
