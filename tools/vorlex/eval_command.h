#pragma once
// The eval command: runs statements against a control and prints what they yield.

#include <ostream>
#include <vector>

#include "options.h"
#include "statement.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::cli {

// Runs the statements in order, writing one line for each that yields a value
// (see ResultText) and "error N" for each that raises automation error N, then
// going on with the next. A statement that makes the control ask its container
// for the About box prints what the box would show, a line each.
void EvalStatements(Vorlex& control, const HeadlessSite& site, const std::vector<Statement>& statements,
                    std::ostream& out);

// The whole command: reads every statement first (one that does not parse is
// bad usage: a one-line message on err, nothing run, status 2), then places a
// control of the source (PlaceControl) and runs them.
// Returns the exit status: 0, or 2 for a statement that does not parse.
int RunEval(const Options& options, std::ostream& out, std::ostream& err);

}  // namespace vorlex::cli
