// The identifiers widl declares from Vorlex.idl, defined once.

#include <initguid.h>
// After <initguid.h>.
#include "com_includes.h"
