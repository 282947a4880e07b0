// Registering the control: machine-wide through DllRegisterServer, or for the
// current user alone through DllInstall ("regsvr32 /n /i:user Vorlex.ocx"),
// which needs no administrator rights. Unregistering removes everything that
// was written.

#include <string>
#include <vector>

#include "com_includes.h"
#include "identities.h"
#include "module.h"
#include "type_library.h"

namespace vorlex::activex {

namespace {

// What the control's status tells a container (OLEMISC_*): activate when
// visible, set the client site first, inside-out, can't link inside,
// recompose on resize.
constexpr DWORD kMiscStatus = OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                              OLEMISC_CANTLINKINSIDE | OLEMISC_RECOMPOSEONRESIZE;
constexpr const wchar_t* kControlCategory = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
constexpr const wchar_t* kDescription = L"Vorlex bar control";

std::wstring Wide(std::string_view text) { return std::wstring(text.begin(), text.end()); }
std::wstring Braced(std::string_view uuid) { return L"{" + Wide(uuid) + L"}"; }

struct Value {
  std::wstring key;   // below the classes root
  std::wstring name;  // empty: the key's default value
  std::wstring data;
};

std::vector<Value> ClassValues() {
  const std::wstring clsid = L"CLSID\\" + Braced(kClassId);
  const std::wstring path = ModulePath();
  const std::wstring progId = Wide(kProgId);
  const std::wstring versioned = Wide(kVersionedProgId);
  const std::wstring version = std::to_wstring(kLibraryMajor) + L"." + std::to_wstring(kLibraryMinor);
  return {
      {clsid, L"", kDescription},
      {clsid + L"\\InprocServer32", L"", path},
      {clsid + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {clsid + L"\\ProgID", L"", versioned},
      {clsid + L"\\VersionIndependentProgID", L"", progId},
      {clsid + L"\\Control", L"", L""},
      {clsid + L"\\MiscStatus", L"", L"0"},
      {clsid + L"\\MiscStatus\\1", L"", std::to_wstring(kMiscStatus)},
      {clsid + L"\\ToolboxBitmap32", L"", path + L", 1"},
      {clsid + L"\\TypeLib", L"", Braced(kLibraryId)},
      {clsid + L"\\Version", L"", version},
      {clsid + L"\\Implemented Categories\\" + kControlCategory, L"", L""},
      {progId, L"", kDescription},
      {progId + L"\\CLSID", L"", Braced(kClassId)},
      {progId + L"\\CurVer", L"", versioned},
      {versioned, L"", kDescription},
      {versioned + L"\\CLSID", L"", Braced(kClassId)},
  };
}

// The property pages: in-process classes of the same module.
std::vector<Value> PageValues() {
  std::vector<Value> values;
  for (const PageClass& page : kPageClasses) {
    const std::wstring clsid = L"CLSID\\" + Braced(page.uuid);
    values.push_back({clsid, L"", Wide(page.name)});
    values.push_back({clsid + L"\\InprocServer32", L"", ModulePath()});
    values.push_back({clsid + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
  }
  return values;
}

// The type library's keys, written by hand for a per-user registration (the
// system's own registration writes them machine-wide).
std::vector<Value> TypeLibraryValues() {
  const std::wstring version = std::to_wstring(kLibraryMajor) + L"." + std::to_wstring(kLibraryMinor);
  const std::wstring lib = L"TypeLib\\" + Braced(kLibraryId) + L"\\" + version;
#ifdef _WIN64
  const std::wstring platform = L"win64";
#else
  const std::wstring platform = L"win32";
#endif
  std::vector<Value> values = {
      {lib, L"", kDescription},
      {lib + L"\\0\\" + platform, L"", ModulePath()},
      {lib + L"\\FLAGS", L"", L"2"},
      {lib + L"\\HELPDIR", L"", L""},
  };
  for (const std::string_view iid : {kInterfaceId, kEventInterfaceId}) {
    const std::wstring key = L"Interface\\" + Braced(iid);
    values.push_back({key, L"", iid == kInterfaceId ? L"_Vorlex" : L"__Vorlex"});
    values.push_back({key + L"\\ProxyStubClsid32", L"", L"{00020424-0000-0000-C000-000000000046}"});
    values.push_back({key + L"\\TypeLib", L"", Braced(kLibraryId)});
    values.push_back({key + L"\\TypeLib", L"Version", version});
  }
  return values;
}

// The keys to delete, whole, on unregistration.
std::vector<std::wstring> OwnedKeys(bool withTypeLibrary) {
  std::vector<std::wstring> keys = {L"CLSID\\" + Braced(kClassId), Wide(kProgId), Wide(kVersionedProgId)};
  for (const PageClass& page : kPageClasses) keys.push_back(L"CLSID\\" + Braced(page.uuid));
  if (withTypeLibrary) {
    keys.push_back(L"TypeLib\\" + Braced(kLibraryId));
    keys.push_back(L"Interface\\" + Braced(kInterfaceId));
    keys.push_back(L"Interface\\" + Braced(kEventInterfaceId));
  }
  return keys;
}

HRESULT Write(HKEY root, const std::vector<Value>& values) {
  for (const Value& v : values) {
    HKEY key = nullptr;
    LONG status = RegCreateKeyExW(root, v.key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
    if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
    status = RegSetValueExW(key, v.name.empty() ? nullptr : v.name.c_str(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(v.data.c_str()),
                            static_cast<DWORD>((v.data.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(key);
    if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
  }
  return S_OK;
}

void Remove(HKEY root, const std::vector<std::wstring>& keys) {
  for (const std::wstring& key : keys) RegDeleteTreeW(root, key.c_str());
}

// HKEY_CLASSES_ROOT's machine or user half.
HRESULT OpenClasses(bool perUser, HKEY* classes) {
  const LONG status = RegCreateKeyExW(perUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE, L"Software\\Classes", 0,
                                      nullptr, 0, KEY_ALL_ACCESS, nullptr, classes, nullptr);
  return status == ERROR_SUCCESS ? S_OK : HRESULT_FROM_WIN32(status);
}

HRESULT Register(bool perUser) {
  HKEY classes = nullptr;
  HRESULT result = OpenClasses(perUser, &classes);
  if (FAILED(result)) return result;
  result = Write(classes, ClassValues());
  if (SUCCEEDED(result)) result = Write(classes, PageValues());
  if (SUCCEEDED(result) && perUser) result = Write(classes, TypeLibraryValues());
  RegCloseKey(classes);
  if (FAILED(result) || perUser) return result;
  ITypeLib* library = nullptr;
  result = LoadOwnTypeLibrary(&library);
  if (FAILED(result)) return result;
  std::wstring path = ModulePath();
  result = RegisterTypeLib(library, path.data(), nullptr);
  library->Release();
  return result;
}

HRESULT Unregister(bool perUser) {
  HKEY classes = nullptr;
  HRESULT result = OpenClasses(perUser, &classes);
  if (FAILED(result)) return result;
  Remove(classes, OwnedKeys(perUser));
  RegCloseKey(classes);
  if (!perUser) {
#ifdef _WIN64
    const SYSKIND kind = SYS_WIN64;
#else
    const SYSKIND kind = SYS_WIN32;
#endif
    GUID libraryId{};
    const std::wstring braced = Braced(kLibraryId);
    if (SUCCEEDED(CLSIDFromString(braced.c_str(), &libraryId)))
      UnRegisterTypeLib(libraryId, static_cast<WORD>(kLibraryMajor), static_cast<WORD>(kLibraryMinor), 0, kind);
  }
  return S_OK;
}

bool IsUserCommand(LPCWSTR command) { return command && lstrcmpiW(command, L"user") == 0; }

}  // namespace

}  // namespace vorlex::activex

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() { return vorlex::activex::Register(false); }
extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() { return vorlex::activex::Unregister(false); }

// regsvr32 /i:user registers for the current user (with /n, alone); without
// "user", machine-wide as DllRegisterServer does.
extern "C" HRESULT STDAPICALLTYPE DllInstall(BOOL install, LPCWSTR command) {
  const bool perUser = vorlex::activex::IsUserCommand(command);
  return install ? vorlex::activex::Register(perUser) : vorlex::activex::Unregister(perUser);
}
