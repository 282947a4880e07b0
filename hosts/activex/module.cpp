// The module's entry points for COM: the class object and whether the module
// may be unloaded.

#include "module.h"

#include "com_includes.h"
#include "property_page_object.h"
#include "vorlex_control.h"

namespace vorlex::activex {

namespace {

HINSTANCE instance = nullptr;
long references = 0;

using Creator = HRESULT (*)(IUnknown* outer, REFIID iid, void** out);

class ClassFactory final : public IClassFactory {
 public:
  explicit constexpr ClassFactory(Creator create) : create_(create) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
    *out = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
  }
  // The factory is static: its references are the module's.
  ULONG STDMETHODCALLTYPE AddRef() override {
    ModuleAddRef();
    return 2;
  }
  ULONG STDMETHODCALLTYPE Release() override {
    ModuleRelease();
    return 1;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
    return create_(outer, iid, out);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    if (lock)
      ModuleAddRef();
    else
      ModuleRelease();
    return S_OK;
  }

 private:
  Creator create_;
};

template <PageKind kind>
HRESULT CreatePage(IUnknown* outer, REFIID iid, void** out) {
  return PropertyPageObject::Create(kind, outer, iid, out);
}

ClassFactory controlFactory(&VorlexControl::Create);
ClassFactory blockPageFactory(&CreatePage<PageKind::Block>);
ClassFactory captionPageFactory(&CreatePage<PageKind::Caption>);
ClassFactory boundariesPageFactory(&CreatePage<PageKind::Boundaries>);

ClassFactory* FactoryOf(REFCLSID clsid) {
  if (clsid == CLSID_Vorlex) return &controlFactory;
  if (clsid == PageClassId(PageKind::Block)) return &blockPageFactory;
  if (clsid == PageClassId(PageKind::Caption)) return &captionPageFactory;
  if (clsid == PageClassId(PageKind::Boundaries)) return &boundariesPageFactory;
  return nullptr;
}

}  // namespace

HINSTANCE ModuleInstance() { return instance; }

std::wstring ModulePath() {
  wchar_t path[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameW(instance, path, MAX_PATH);
  return std::wstring(path, length);
}

void ModuleAddRef() { InterlockedIncrement(&references); }
void ModuleRelease() { InterlockedDecrement(&references); }
long ModuleReferences() { return references; }

}  // namespace vorlex::activex

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    vorlex::activex::instance = instance;
    DisableThreadLibraryCalls(instance);
  }
  return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  vorlex::activex::ClassFactory* factory = vorlex::activex::FactoryOf(clsid);
  if (!factory) return CLASS_E_CLASSNOTAVAILABLE;
  return factory->QueryInterface(iid, out);
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return vorlex::activex::ModuleReferences() == 0 ? S_OK : S_FALSE;
}
