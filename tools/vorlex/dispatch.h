#pragma once
// Carrying out a statement through the control's automation table.

#include "statement.h"
#include "vorlex/Automation.h"
#include "vorlex/Variant.h"
#include "vorlex/Vorlex.h"

namespace vorlex::cli {

// The kind of call a statement makes:
//   Name, Name(args): the property get of that name if there is one, else the method
//   Name = value, Name(args) = value: the property put, or the property putref when
//     the value is an object and a putref exists, or when only a putref exists
InvokeKind CallKind(const Statement& statement);

// Calls the member; the assigned value goes last. With an object member
// (Font.Name), gets the property and then reads or assigns that member of the
// object it gives: 424 when it gives no object, 91 when it gives Nothing.
// Raises AutomationError as Invoke does (438 for a name the table does not
// hold), or the error a value of the statement raised while it was read,
// without calling anything.
Variant Execute(Vorlex& control, const Statement& statement);

}  // namespace vorlex::cli
