#pragma once
// The COM face of the control's fonts and pictures: an IFontDisp or
// IPictureDisp whose members read and write the one shared object, so that a
// script holding ctl.Font changes the control's font.

#include <memory>

#include "com_includes.h"
#include "vorlex/Object.h"

namespace vorlex::activex {

// Asked of an IDispatch to learn whether it is one of ours.
// {D9CB446A-0152-4ED1-9E99-BDE25E73EE5C}
inline constexpr GUID kObjectDispatchIid = {
    0xd9cb446a, 0x0152, 0x4ed1, {0x9e, 0x99, 0xbd, 0xe2, 0x5e, 0x73, 0xee, 0x5c}};

// A new dispatch object over a font or picture, with one reference.
IDispatch* NewObjectDispatch(std::shared_ptr<Object> object);
// The object behind one of ours, or null for any other IDispatch.
std::shared_ptr<Object> SharedObjectOf(IDispatch* dispatch);

}  // namespace vorlex::activex
