// The -e statements of a command.

#include "statement_list.h"

#include <cstddef>

#include "dispatch.h"
#include "syntax_error.h"
#include "vorlex/AutomationError.h"

namespace vorlex::cli {

bool ReadStatements(const std::vector<std::string>& texts, std::vector<Statement>& statements, std::ostream& err) {
  for (const std::string& text : texts) {
    try {
      statements.push_back(ParseStatement(text));
    } catch (const SyntaxError& error) {
      err << "vorlex: cannot read statement \"" << text << "\": " << error.what() << '\n';
      return false;
    }
  }
  return true;
}

bool ApplyStatements(Vorlex& control, const std::vector<std::string>& texts, const std::vector<Statement>& statements,
                     std::ostream& err) {
  for (std::size_t i = 0; i < statements.size(); ++i) {
    try {
      Execute(control, statements[i]);
    } catch (const AutomationError& error) {
      err << "vorlex: statement \"" << texts[i] << "\": error " << error.Number() << ": " << error.what() << '\n';
      return false;
    }
  }
  return true;
}

int PrepareControl(const Options& options, PlacedControl& placed, bool paint, std::ostream& err) {
  std::vector<Statement> statements;
  if (!ReadStatements(options.statements, statements, err)) return 2;
  placed = PlaceControl(options);
  if (!ApplyStatements(*placed.control, options.statements, statements, err)) return 1;
  if (!paint) return 0;
  try {
    placed.control->UserControl_Paint();
  } catch (const AutomationError& error) {
    err << "vorlex: painting: error " << error.Number() << ": " << error.what() << '\n';
    return 1;
  }
  return 0;
}

}  // namespace vorlex::cli
