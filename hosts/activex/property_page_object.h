#pragma once
// The three property pages as COM objects: one implementation of
// IPropertyPage, parameterised by the page logic it creates. The logic lives
// as long as the object, across Deactivate and Activate, so the Block page's
// working copy survives a page switch in the host's frame.

#include <memory>
#include <vector>

#include "com_includes.h"
#include "dispatch_control_object.h"
#include "editor_services.h"
#include "editors/page_factory.h"
#include "editors/property_page.h"
#include "guid_text.h"
#include "identities.h"
#include "module.h"
#include "win32_page_view.h"

namespace vorlex::activex {

using editors::PageKind;

inline constexpr PageKind kPageKinds[] = {PageKind::Block, PageKind::Caption, PageKind::Boundaries};

constexpr GUID PageClassId(PageKind kind) { return GuidFromText(kPageClasses[static_cast<size_t>(kind)].uuid); }

class PropertyPageObject final : public IPropertyPage, public IEditorServices {
 public:
  // A new page with one reference.
  static HRESULT Create(PageKind kind, IUnknown* outer, REFIID iid, void** out);

  // IUnknown
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IPropertyPage
  HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) override;
  HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT rect, BOOL modal) override;
  HRESULT STDMETHODCALLTYPE Deactivate() override;
  HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override;
  HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) override;
  HRESULT STDMETHODCALLTYPE Show(UINT command) override;
  HRESULT STDMETHODCALLTYPE Move(LPCRECT rect) override;
  HRESULT STDMETHODCALLTYPE IsPageDirty() override;
  HRESULT STDMETHODCALLTYPE Apply() override;
  HRESULT STDMETHODCALLTYPE Help(LPCOLESTR helpDir) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* msg) override;

  // IEditorServices
  HRESULT STDMETHODCALLTYPE ReplaceServices(editors::DialogService* dialogs, editors::AboutSystem* about,
                                            ErrorReporter* errors) override;

 private:
  explicit PropertyPageObject(PageKind kind);
  ~PropertyPageObject();

  static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
  // Runs a handler of the logic; what it does not absorb is shown, not thrown.
  template <class F>
  bool Guarded(F&& handler);
  void Changed(bool changed);

  long refs_ = 1;
  ModuleReference module_;
  PageKind kind_;
  Win32PageView view_;
  CurrentDialogs dialogs_;
  std::unique_ptr<editors::PropertyPage> logic_;
  std::vector<std::unique_ptr<DispatchControlObject>> objects_;
  IPropertyPageSite* site_ = nullptr;
  HWND dialog_ = nullptr;
};

// The page's size in pixels, from its template's dialog units and font.
SIZE PageSize(const PageLayout& layout);

}  // namespace vorlex::activex
