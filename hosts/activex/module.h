#pragma once
// The server module: its instance handle and the count of live objects and
// locks that DllCanUnloadNow reports.

#include <string>

#include "com_includes.h"

namespace vorlex::activex {

HINSTANCE ModuleInstance();
// The module's full path.
std::wstring ModulePath();
void ModuleAddRef();
void ModuleRelease();
long ModuleReferences();

// Holds the module for as long as the object that owns it lives.
class ModuleReference {
 public:
  ModuleReference() { ModuleAddRef(); }
  ~ModuleReference() { ModuleRelease(); }
  ModuleReference(const ModuleReference&) = delete;
  ModuleReference& operator=(const ModuleReference&) = delete;
};

}  // namespace vorlex::activex
