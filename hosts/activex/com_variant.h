#pragma once
// Between COM's VARIANT and the control's tagged value, and between the COM
// types of the dual interface's arguments and tagged values. Conversions that
// cannot be made raise the automation error Basic gives (13, 94).

#include <string>

#include "com_includes.h"
#include "vorlex/Variant.h"

namespace vorlex::activex {

// A BSTR as UTF-8 and back; a null BSTR is the empty string.
std::string FromBstr(BSTR text);
// A zero-terminated wide string (a name passed to GetIDsOfNames) as UTF-8.
std::string FromWide(const wchar_t* text);
BSTR ToBstr(const std::string& text);

// A VARIANT as a tagged value: by-reference values are read through, an
// omitted argument (VT_ERROR with DISP_E_PARAMNOTFOUND) is Missing, fonts and
// pictures become the control's objects sharing the caller's.
Variant FromComVariant(const VARIANT& value);
// Writes a tagged value into an empty VARIANT the caller then owns.
void ToComVariant(const Variant& value, VARIANT* out);

// The object an IDispatch stands for (a font or a picture), or null.
std::shared_ptr<Object> ObjectFromDispatch(IDispatch* dispatch);
// The IDispatch a host gets for an object (null for Nothing), with a reference
// the caller owns.
IDispatch* DispatchFromObject(const std::shared_ptr<Object>& object);

}  // namespace vorlex::activex
