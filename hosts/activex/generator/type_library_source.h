#pragma once
// The sources the ActiveX server is built from that follow the automation
// table: the type library's IDL and the dual interface's vtable methods. Both
// are generated here and kept in the source tree; a test regenerates them and
// fails when the tree's copies are stale.

#include <string>

namespace vorlex::activex {

// Vorlex.idl: the library, the fourteen enumerations, the dual interface
// _Vorlex, the event interface __Vorlex and the coclass.
std::string TypeLibrarySource();

// dual_interface.h and dual_methods.cpp: the class that implements _Vorlex's
// vtable, each method forwarding to the table.
std::string DualInterfaceHeader();
std::string DualMethodsSource();

}  // namespace vorlex::activex
