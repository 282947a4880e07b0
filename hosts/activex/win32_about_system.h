#pragma once
// The About box's system calls on Win32: the registry, file existence,
// program start and the message box.

#include "com_includes.h"
#include "editor_services.h"
#include "editors/about_box.h"

namespace vorlex::activex {

class Win32AboutSystem final : public editors::AboutSystem {
 public:
  long RegOpenKeyExA(uint32_t root, const std::string& subKey, uint32_t access, uintptr_t* key) override;
  long RegQueryValueExA(uintptr_t key, const std::string& valueName, uint32_t* type, uint8_t* data,
                        uint32_t* size) override;
  long RegCloseKey(uintptr_t key) override;
  bool FileExists(const std::string& path) override;
  void StartProgram(const std::string& path) override;
  void MessageBox(const std::string& text) override;
};

}  // namespace vorlex::activex
