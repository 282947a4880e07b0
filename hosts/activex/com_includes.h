#pragma once
// Windows and OLE headers in the order the server's files need them, then the
// interfaces widl declares from Vorlex.idl.

// The library's own names that Windows also defines as macros (VARIANT_TRUE,
// DISPID_UNKNOWN) are declared before the macros exist; after this header,
// code uses the Windows spellings.
#include "vorlex/Automation.h"
#include "vorlex/Numeric.h"

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// After <windows.h>.
#include <oaidl.h>
#include <objbase.h>
#include <objsafe.h>
#include <ocidl.h>
#include <olectl.h>

#include "Vorlex_h.h"
