#pragma once
// The type library embedded in the module, loaded once per call.

#include "com_includes.h"

namespace vorlex::activex {

// The embedded library, with a reference the caller releases.
HRESULT LoadOwnTypeLibrary(ITypeLib** library);
// The description of one type of the library (the interface, the event
// interface, the coclass).
HRESULT TypeInfoOf(REFGUID guid, ITypeInfo** info);

}  // namespace vorlex::activex
