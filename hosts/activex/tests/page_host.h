#pragma once
// Hosting a property page of the server as a frame would, in a window of the
// test: a page site that records status changes, the module's services
// replaced by scripted fakes, and the page's controls worked with window
// messages as a user's actions send them.

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "editor_services.h"
#include "ocx_fixture.h"
#include "test_sinks.h"

namespace vorlex::activex::test {

class RecordingPageSite final : public IPropertyPageSite {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override;
  HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override;
  HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }

  std::vector<DWORD> statusChanges;
};

// Answers each dialog from a script: true with the values to choose, or false
// for Cancel. What each dialog was shown with is kept.
class ScriptedDialogs final : public editors::DialogService {
 public:
  using Answer = std::function<bool(editors::CommonDialog&)>;
  bool ChooseColor(editors::CommonDialog& dialog) override { return Next("color", dialog); }
  bool ChooseFont(editors::CommonDialog& dialog) override { return Next("font", dialog); }
  bool ChooseOpenFile(editors::CommonDialog& dialog) override { return Next("open", dialog); }

  void Script(std::string kind, Answer answer) { answers_.push_back({std::move(kind), std::move(answer)}); }
  struct Shown {
    std::string kind;
    int32_t flags;
    OLE_COLOR color;
    std::string fontName;
  };
  std::vector<Shown> shown;

 private:
  bool Next(const std::string& kind, editors::CommonDialog& dialog);
  std::deque<std::pair<std::string, Answer>> answers_;
};

// A registry of the test's own, with programs started and messages kept.
class FakeAboutSystem final : public editors::AboutSystem {
 public:
  long RegOpenKeyExA(uint32_t root, const std::string& subKey, uint32_t access, uintptr_t* key) override;
  long RegQueryValueExA(uintptr_t key, const std::string& valueName, uint32_t* type, uint8_t* data,
                        uint32_t* size) override;
  long RegCloseKey(uintptr_t key) override;
  bool FileExists(const std::string& path) override;
  void StartProgram(const std::string& path) override { started.push_back(path); }
  void MessageBox(const std::string& text) override { messages.push_back(text); }

  std::map<std::string, std::map<std::string, std::string>> keys;  // key, value name, text
  std::vector<std::string> opened;
  std::vector<std::string> started;
  std::vector<std::string> messages;

 private:
  std::vector<std::string> handles_;
};

class RecordedErrors final : public ErrorReporter {
 public:
  void ShowError(const std::string& text) override { texts.push_back(text); }
  std::vector<std::string> texts;
};

class PageTest : public OcxTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Creates and activates the page over the given controls (the fixture's
  // control when none are given).
  void Host(REFCLSID page, std::vector<IDispatch*> controls = {});
  HWND Item(int id) const;
  std::wstring TextOf(int id) const;
  void Type(int id, const wchar_t* text);
  void Click(int id);
  void Choose(int id, int index);
  void ScrollTo(int id, int position);
  void SelectTab(int id, int index);
  bool Visible(int id) const { return IsWindowVisible(Item(id)) != FALSE; }
  bool Enabled(int id) const { return IsWindowEnabled(Item(id)) != FALSE; }

  // A property of a control read through IDispatch.
  VARIANT Property(IDispatch* target, const wchar_t* name, std::vector<VARIANT> args = {});
  long LongOf(const wchar_t* name, std::vector<VARIANT> args = {});
  std::wstring StringOf(const wchar_t* name, std::vector<VARIANT> args = {});

  HWND host = nullptr;
  AmbientSite designSite;  // a form designer's: UserMode False
  Ref<IPropertyPage> page;
  RecordingPageSite site;
  ScriptedDialogs dialogs;
  FakeAboutSystem about;
  RecordedErrors errors;
  Ref<IUnknown> services;
};

// The pixels of a window's client area (or a memory context's bitmap), 0x00RRGGBB.
std::vector<uint32_t> ClientPixels(HWND window, int* width, int* height);
std::vector<uint32_t> BitmapPixels(HDC memory, HBITMAP bitmap, int width, int height);

}  // namespace vorlex::activex::test
