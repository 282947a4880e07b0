#pragma once
// One call of the control's automation interface in Basic syntax:
//   Name    Name(args)    Name = value    Name(args) = value
// and, on a property that gives an object (a font, a picture), one of its members:
//   Name.Member    Name(args).Member    Name.Member = value    Name(args).Member = value
// Arguments and values are literals: numbers (see literal.h), "strings" with ""
// for a quote, True, False, Nothing and LoadPicture("path"), which loads a
// picture file as Basic's LoadPicture does (LoadPicture() and LoadPicture("")
// give the empty picture; a relative path is relative to the current folder).
// An empty argument is an omitted one.

#include <cstdint>
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
  // The object member after a dot (Font.Name: "Name"), or empty.
  std::string member;
  // The assigned value, for Name = value and Name(args) = value.
  std::optional<Variant> value;
  // The automation error a value raised while it was read (LoadPicture of a
  // missing file: 53), or 0. Running the statement raises it instead of calling
  // the member, as Basic raises it before the call.
  int32_t valueError = 0;
};

// Reads one statement; throws SyntaxError saying what is wrong. Pictures named
// by LoadPicture are loaded here.
Statement ParseStatement(std::string_view text);

}  // namespace vorlex::cli
