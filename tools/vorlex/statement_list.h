#pragma once
// The -e statements of a command: read all first, then carried out.

#include <ostream>
#include <string>
#include <vector>

#include "options.h"
#include "source.h"
#include "statement.h"
#include "vorlex/Vorlex.h"

namespace vorlex::cli {

// Reads every text; on the first that does not parse writes one line naming it
// to err and returns false.
bool ReadStatements(const std::vector<std::string>& texts, std::vector<Statement>& statements, std::ostream& err);

// Carries the statements out in order, ignoring what they yield. On the first
// automation error writes one line naming the statement and the error to err
// and returns false: render, click and save stop there.
bool ApplyStatements(Vorlex& control, const std::vector<std::string>& texts, const std::vector<Statement>& statements,
                     std::ostream& err);

// What render, click and save share: reads options.statements, places the
// source's control and applies them, then paints once when asked. Returns 0,
// or the exit status of the failure: 2 for a statement that does not parse,
// 1 for an automation error (one line on err).
int PrepareControl(const Options& options, PlacedControl& placed, bool paint, std::ostream& err);

}  // namespace vorlex::cli
