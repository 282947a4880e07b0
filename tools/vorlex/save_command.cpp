// The save command.

#include "save_command.h"

#include <string>

#include "source.h"
#include "statement_list.h"
#include "vorlex/FormText.h"

namespace vorlex::cli {

int RunSave(const Options& options, std::ostream& out, std::ostream& err) {
  PlacedControl placed;
  if (const int status = PrepareControl(options, placed, false, err)) return status;
  if (!options.outPath.empty()) {
    SaveForm(*placed.control, placed.name, options.outPath);
    return 0;
  }
  out << SaveFormText(*placed.control, placed.name, placed.name + ".frm");
  return 0;
}

}  // namespace vorlex::cli
