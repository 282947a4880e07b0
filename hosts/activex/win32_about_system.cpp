#include "win32_about_system.h"

#include <shellapi.h>

#include "editor_services.h"
#include "vorlex/AutomationError.h"

namespace vorlex::activex {

namespace {
// A predefined key's 32-bit value as the handle Windows gives it (sign-extended).
HKEY RootKey(uint32_t root) {
  return reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(static_cast<LONG_PTR>(static_cast<LONG>(root))));
}
}  // namespace

long Win32AboutSystem::RegOpenKeyExA(uint32_t root, const std::string& subKey, uint32_t access, uintptr_t* key) {
  HKEY opened = nullptr;
  const LONG status = ::RegOpenKeyExA(RootKey(root), subKey.c_str(), 0, access, &opened);
  *key = reinterpret_cast<uintptr_t>(opened);
  return status;
}

long Win32AboutSystem::RegQueryValueExA(uintptr_t key, const std::string& valueName, uint32_t* type, uint8_t* data,
                                        uint32_t* size) {
  DWORD kind = 0;
  DWORD bytes = *size;
  const LONG status = ::RegQueryValueExA(reinterpret_cast<HKEY>(key), valueName.c_str(), nullptr, &kind, data, &bytes);
  *type = kind;
  *size = bytes;
  return status;
}

long Win32AboutSystem::RegCloseKey(uintptr_t key) { return ::RegCloseKey(reinterpret_cast<HKEY>(key)); }

bool Win32AboutSystem::FileExists(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void Win32AboutSystem::StartProgram(const std::string& path) {
  const auto result =
      reinterpret_cast<INT_PTR>(ShellExecuteA(DialogOwner(), "open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
  if (result > 32) return;
  RaiseError(result == ERROR_FILE_NOT_FOUND || result == ERROR_PATH_NOT_FOUND ? kErrFileNotFound : kErrInvalidCall);
}

void Win32AboutSystem::MessageBox(const std::string& text) {
  MessageBoxA(DialogOwner(), text.c_str(), "Vorlex", MB_OK);
}

}  // namespace vorlex::activex
