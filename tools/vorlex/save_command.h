#pragma once
// The save command: the source's control, the statements, then its form text.

#include <ostream>

#include "options.h"

namespace vorlex::cli {

// Writes the form text to options.outPath, or to out without -o (pictures are
// then written beside a form named after the control in the current folder).
// Returns the exit status: 0, 1 for an automation error, 2 for a statement
// that does not parse. Raises FormError for a form that cannot be written.
int RunSave(const Options& options, std::ostream& out, std::ostream& err);

}  // namespace vorlex::cli
