// Registration with the system's regsvr32, checked with reg query and by
// reading the keys: machine-wide, per user, and nothing left behind.

#include <string>

#include "identities.h"
#include "ocx_fixture.h"
#include "process_run.h"

namespace vorlex::activex::test {
namespace {

std::wstring Wide(std::string_view text) { return std::wstring(text.begin(), text.end()); }
std::wstring ClassKey() { return L"Software\\Classes\\CLSID\\{" + Wide(kClassId) + L"}"; }

bool KeyExists(HKEY root, const std::wstring& key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

std::wstring ValueOf(HKEY root, const std::wstring& key, const wchar_t* name) {
  wchar_t data[1024] = {};
  DWORD size = sizeof data;
  if (RegGetValueW(root, key.c_str(), name, RRF_RT_REG_SZ, nullptr, data, &size) != ERROR_SUCCESS) return L"<none>";
  return data;
}

ProcessResult Regsvr32(const std::wstring& options) {
  return RunProcess(L"regsvr32.exe /s " + options + L" \"" + ServerPath() + L"\"");
}

class Registration : public ::testing::Test {
 protected:
  void TearDown() override {
    Regsvr32(L"/u");
    Regsvr32(L"/u /n /i:user");
  }
};

TEST_F(Registration, MachineWideRegistrationWritesEveryKeyAndUnregistrationRemovesThem) {
  ASSERT_EQ(Regsvr32(L"").exitCode, 0u);
  const ProcessResult query = RunProcess(L"reg.exe query \"HKLM\\" + ClassKey() + L"\\InprocServer32\"");
  EXPECT_EQ(query.exitCode, 0u) << query.output;
  EXPECT_NE(query.output.find("Apartment"), std::string::npos) << query.output;
  const std::wstring key = ClassKey();
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\InprocServer32", nullptr), ServerPath());
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\ProgID", nullptr), L"VorlexLib.Vorlex.1");
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\VersionIndependentProgID", nullptr), L"VorlexLib.Vorlex");
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, key + L"\\Control"));
  EXPECT_NE(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\MiscStatus\\1", nullptr), L"<none>");
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\ToolboxBitmap32", nullptr), ServerPath() + L", 1");
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\TypeLib", nullptr), L"{" + Wide(kLibraryId) + L"}");
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, key + L"\\Version", nullptr), L"1.0");
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, key + L"\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}"));
  EXPECT_EQ(ValueOf(HKEY_LOCAL_MACHINE, L"Software\\Classes\\VorlexLib.Vorlex\\CurVer", nullptr),
            L"VorlexLib.Vorlex.1");
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, L"Software\\Classes\\TypeLib\\{" + Wide(kLibraryId) + L"}"));
  CLSID clsid{};
  EXPECT_EQ(CLSIDFromProgID(L"VorlexLib.Vorlex", &clsid), S_OK);
  EXPECT_TRUE(IsEqualGUID(clsid, CLSID_Vorlex));

  ASSERT_EQ(Regsvr32(L"/u").exitCode, 0u);
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, key));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, L"Software\\Classes\\VorlexLib.Vorlex"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, L"Software\\Classes\\VorlexLib.Vorlex.1"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, L"Software\\Classes\\TypeLib\\{" + Wide(kLibraryId) + L"}"));
  const ProcessResult gone = RunProcess(L"reg.exe query \"HKLM\\" + ClassKey() + L"\"");
  EXPECT_NE(gone.exitCode, 0u);
}

TEST_F(Registration, PerUserRegistrationWritesUnderTheUsersClassesOnly) {
  ASSERT_EQ(Regsvr32(L"/n /i:user").exitCode, 0u);
  const std::wstring key = ClassKey();
  EXPECT_EQ(ValueOf(HKEY_CURRENT_USER, key + L"\\InprocServer32", nullptr), ServerPath());
  EXPECT_EQ(ValueOf(HKEY_CURRENT_USER, L"Software\\Classes\\VorlexLib.Vorlex\\CLSID", nullptr),
            L"{" + Wide(kClassId) + L"}");
  EXPECT_TRUE(KeyExists(HKEY_CURRENT_USER, L"Software\\Classes\\TypeLib\\{" + Wide(kLibraryId) + L"}\\1.0\\0\\win64"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, key)) << "nothing machine-wide";
  const ProcessResult query = RunProcess(L"reg.exe query \"HKCU\\" + key + L"\"");
  EXPECT_EQ(query.exitCode, 0u) << query.output;

  ASSERT_EQ(Regsvr32(L"/u /n /i:user").exitCode, 0u);
  EXPECT_FALSE(KeyExists(HKEY_CURRENT_USER, key));
  EXPECT_FALSE(KeyExists(HKEY_CURRENT_USER, L"Software\\Classes\\VorlexLib.Vorlex"));
  EXPECT_FALSE(KeyExists(HKEY_CURRENT_USER, L"Software\\Classes\\TypeLib\\{" + Wide(kLibraryId) + L"}"));
}

}  // namespace
}  // namespace vorlex::activex::test
