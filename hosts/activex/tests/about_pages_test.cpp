// The About box shown by the control, worked from inside its modal loop, and
// the property pages as a form designer finds them: through GetPages and the
// registry.

#include <string>

#include "editors/about_box.h"
#include "identities.h"
#include "page_host.h"
#include "page_resources.h"
#include "property_page_object.h"

namespace vorlex::activex::test {
namespace {

using AboutPagesTest = PageTest;

std::wstring Wide(std::string_view text) { return std::wstring(text.begin(), text.end()); }

struct AboutVisit {
  bool found = false;
  std::wstring caption, name, version, information, maker;
  uint32_t panelCentre = 0;
  size_t messagesAfterSysInfo = 0;
  FakeAboutSystem* system = nullptr;
};
AboutVisit* visit = nullptr;

std::wstring DialogText(HWND dialog, int id) {
  wchar_t text[512] = {};
  GetDlgItemTextW(dialog, id, text, 512);
  return text;
}

// Runs inside the About box's modal loop: reads it, presses System Info, then OK.
void CALLBACK VisitAboutBox(HWND, UINT, UINT_PTR timer, DWORD) {
  HWND dialog = FindWindowW(nullptr, L"About Vorlex ActiveX control");
  if (!dialog || !visit) return;
  KillTimer(nullptr, timer);
  visit->found = true;
  visit->caption = L"About Vorlex ActiveX control";
  visit->name = DialogText(dialog, IDC_lblName);
  visit->version = DialogText(dialog, IDC_lblVersion);
  visit->information = DialogText(dialog, IDC_lblInformation);
  visit->maker = DialogText(dialog, IDC_lblMaker);
  HWND panel = GetDlgItem(dialog, IDC_AboutPicture1);
  UpdateWindow(dialog);
  int width = 0, height = 0;
  const std::vector<uint32_t> pixels = ClientPixels(panel, &width, &height);
  if (width > 0 && height > 0)
    visit->panelCentre =
        pixels[static_cast<size_t>(height / 2) * static_cast<size_t>(width) + static_cast<size_t>(width / 2)];
  SendMessageW(GetDlgItem(dialog, IDC_cmdSysInfo), BM_CLICK, 0, 0);
  visit->messagesAfterSysInfo = visit->system->messages.size();
  SendMessageW(GetDlgItem(dialog, IDC_cmdOK), BM_CLICK, 0, 0);
}

TEST_F(AboutPagesTest, AboutBoxShowsItsTextsAndSystemInfoWithoutTheRegistryKeysOnlyReports) {
  Host(PageClassId(PageKind::Boundaries));  // puts the test's services in place
  AboutVisit seen;
  seen.system = &about;
  visit = &seen;
  const UINT_PTR timer = SetTimer(nullptr, 0, 50, VisitAboutBox);
  const HRESULT shown = Call(L"ShowAboutBox", DISPATCH_METHOD);
  KillTimer(nullptr, timer);
  visit = nullptr;
  EXPECT_EQ(shown, S_OK);
  ASSERT_TRUE(seen.found) << "the About box did not show";
  EXPECT_EQ(seen.name, L"Vorlex");
  EXPECT_EQ(seen.version, Wide(editors::AboutBox::VersionLine()));
  EXPECT_EQ(seen.version.rfind(L"Version ", 0), 0u);
  EXPECT_EQ(seen.information.rfind(L"For more information on our products, contact us at :", 0), 0u);
  EXPECT_FALSE(seen.maker.empty());
  EXPECT_NE(seen.panelCentre, 0xFFFF80u) << "the panel is painted with its gradient above 8 bits";
  EXPECT_EQ(seen.messagesAfterSysInfo, 1u);
  ASSERT_EQ(about.messages.size(), 1u);
  EXPECT_EQ(about.messages[0], "System Information Is Unavailable At This Time");
  EXPECT_TRUE(about.started.empty());
  ASSERT_EQ(about.opened.size(), 2u);
  EXPECT_EQ(about.opened[0], "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO");
  EXPECT_EQ(about.opened[1], "SOFTWARE\\Microsoft\\Shared Tools Location");
}

TEST_F(AboutPagesTest, SystemInfoStartsTheProgramTheRegistryNames) {
  Host(PageClassId(PageKind::Boundaries));
  about.keys["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"]["PATH"] = "C:\\tools\\msinfo32.exe";
  AboutVisit seen;
  seen.system = &about;
  visit = &seen;
  const UINT_PTR timer = SetTimer(nullptr, 0, 50, VisitAboutBox);
  Call(L"About", DISPATCH_METHOD);
  KillTimer(nullptr, timer);
  visit = nullptr;
  ASSERT_TRUE(seen.found);
  ASSERT_EQ(about.started.size(), 1u);
  EXPECT_EQ(about.started[0], "C:\\tools\\msinfo32.exe");
  EXPECT_TRUE(about.messages.empty());
}

TEST_F(AboutPagesTest, GetPagesListsTheThreePages) {
  Ref<ISpecifyPropertyPages> specify;
  ASSERT_EQ(control->QueryInterface(IID_ISpecifyPropertyPages, specify.put_void()), S_OK);
  CAUUID pages{};
  ASSERT_EQ(specify->GetPages(&pages), S_OK);
  ASSERT_EQ(pages.cElems, 3u);
  for (size_t i = 0; i < kPageClasses.size(); ++i) {
    CLSID expected{};
    ASSERT_EQ(CLSIDFromString(Wide("{" + std::string(kPageClasses[i].uuid) + "}").c_str(), &expected), S_OK);
    EXPECT_TRUE(IsEqualGUID(pages.pElems[i], expected)) << kPageClasses[i].name;
  }
  CoTaskMemFree(pages.pElems);
}

TEST_F(AboutPagesTest, EachPageHasItsCaptionAndSize) {
  const wchar_t* captions[] = {L"&Block", L"&Caption", L"&Boundaries"};
  for (PageKind kind : kPageKinds) {
    Ref<IPropertyPage> one;
    ASSERT_EQ(CreateServerObject(PageClassId(kind), IID_IPropertyPage, one.put_void()), S_OK);
    PROPPAGEINFO info{};
    ASSERT_EQ(one->GetPageInfo(&info), S_OK);
    EXPECT_STREQ(info.pszTitle, captions[static_cast<int>(kind)]);
    EXPECT_GT(info.size.cx, 100);
    EXPECT_GT(info.size.cy, 50);
    CoTaskMemFree(info.pszTitle);
  }
}

TEST_F(AboutPagesTest, RegisteredPagesAreCreatableByClassId) {
  using Entry = HRESULT(STDAPICALLTYPE*)();
  const auto registerServer =
      reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllRegisterServer")));
  const auto unregisterServer =
      reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllUnregisterServer")));
  ASSERT_NE(registerServer, nullptr);
  ASSERT_NE(unregisterServer, nullptr);
  ASSERT_EQ(registerServer(), S_OK);
  for (const PageClass& pageClass : kPageClasses) {
    CLSID clsid{};
    ASSERT_EQ(CLSIDFromString(Wide("{" + std::string(pageClass.uuid) + "}").c_str(), &clsid), S_OK);
    Ref<IPropertyPage> created;
    EXPECT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage, created.put_void()), S_OK)
        << pageClass.name;
  }
  EXPECT_EQ(unregisterServer(), S_OK);
  for (const PageClass& pageClass : kPageClasses) {
    HKEY key = nullptr;
    const std::wstring path = L"Software\\Classes\\CLSID\\{" + Wide(pageClass.uuid) + L"}";
    EXPECT_NE(RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ, &key), ERROR_SUCCESS) << pageClass.name;
    if (key) RegCloseKey(key);
  }
}

}  // namespace
}  // namespace vorlex::activex::test
