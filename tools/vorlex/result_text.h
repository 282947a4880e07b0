#pragma once
// How eval prints the value a statement yields.

#include <optional>
#include <string>

#include "vorlex/Variant.h"

namespace vorlex::cli {

// The line for a value, or nothing for an Empty result (lets, most methods):
// numbers in their shortest decimal form, strings as they are, booleans as True
// or False, an object as its default property (a font's Name, a picture's
// Handle), Nothing as "Nothing". An object without a default property raises
// automation error 438, as Basic does when asked to print one.
std::optional<std::string> ResultText(const Variant& result);

}  // namespace vorlex::cli
