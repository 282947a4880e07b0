// The eval command: runs statements against a control and prints what they yield.

#include "eval_command.h"

#include <optional>
#include <string>

#include "dispatch.h"
#include "editors/about_box.h"
#include "result_text.h"
#include "source.h"
#include "statement_list.h"
#include "vorlex/AutomationError.h"

namespace vorlex::cli {

namespace {
// The About box's caption and labels, as the container would show them.
void PrintAboutBox(std::ostream& out) {
  out << editors::AboutBox::kCaption << '\n';
  for (const editors::AboutBox::Label& label : editors::AboutBox::Labels()) out << label.text << '\n';
}
}  // namespace

void EvalStatements(Vorlex& control, const HeadlessSite& site, const std::vector<Statement>& statements,
                    std::ostream& out) {
  for (const Statement& statement : statements) {
    const int aboutBefore = site.AboutBoxRequests();
    try {
      const std::optional<std::string> line = ResultText(Execute(control, statement));
      if (line) out << *line << '\n';
    } catch (const AutomationError& error) {
      out << "error " << error.Number() << '\n';
    }
    if (site.AboutBoxRequests() != aboutBefore) PrintAboutBox(out);
  }
}

int RunEval(const Options& options, std::ostream& out, std::ostream& err) {
  std::vector<Statement> statements;
  if (!ReadStatements(options.statements, statements, err)) return 2;

  const PlacedControl placed = PlaceControl(options);
  EvalStatements(*placed.control, *placed.site, statements, out);
  return 0;
}

}  // namespace vorlex::cli
