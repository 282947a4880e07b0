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

}  // namespace vorlex::cli
