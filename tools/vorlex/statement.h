#pragma once
// One call of the control's automation interface in Basic syntax:
//   Name    Name(args)    Name = value    Name(args) = value
// Arguments and values are literals: numbers (see literal.h), "strings" with ""
// for a quote, True, False and Nothing. An empty argument is an omitted one.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "syntax_error.h"
#include "vorlex/Variant.h"

namespace vorlex::cli {

struct Statement {
  std::string name;
  // In call order; Variant::Missing() for an omitted argument. Empty
  // parentheses pass no arguments, so every optional argument takes its default.
  std::vector<Variant> args;
  // The assigned value, for Name = value and Name(args) = value.
  std::optional<Variant> value;
};

// Reads one statement; throws SyntaxError saying what is wrong.
Statement ParseStatement(std::string_view text);

}  // namespace vorlex::cli
