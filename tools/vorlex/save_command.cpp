// The save command.

#include "save_command.h"

#include <string>
#include <vector>

#include "source.h"
#include "statement_list.h"
#include "vorlex/FormText.h"

namespace vorlex::cli {

int RunSave(const Options& options, std::ostream& out, std::ostream& err) {
  std::vector<Statement> statements;
  if (!ReadStatements(options.statements, statements, err)) return 2;
  const PlacedControl placed = PlaceControl(options);
  if (!ApplyStatements(*placed.control, options.statements, statements, err)) return 1;
  if (!options.outPath.empty()) {
    SaveForm(*placed.control, placed.name, options.outPath);
    return 0;
  }
  out << SaveFormText(*placed.control, placed.name, placed.name + ".frm");
  return 0;
}

}  // namespace vorlex::cli
