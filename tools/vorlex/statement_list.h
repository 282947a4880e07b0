#pragma once
// The -e statements of a command: read all first, then carried out.

#include <ostream>
#include <string>
#include <vector>

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

}  // namespace vorlex::cli
