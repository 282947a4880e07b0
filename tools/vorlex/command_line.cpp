// The vorlex tool as a function of its arguments.

#include "command_line.h"

#include "eval_command.h"
#include "options.h"
#include "render_command.h"
#include "save_command.h"
#include "vorlex/FormText.h"

namespace vorlex::cli {

int RunCommandLine(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  Options options;
  try {
    options = ParseOptions(args);
  } catch (const UsageError& error) {
    if (*error.what() != '\0') err << "vorlex: " << error.what() << '\n';
    if (error.ShowUsage()) err << UsageText();
    return 2;
  }
  if (options.help) {
    out << UsageText();
    return 0;
  }
  try {
    if (options.command == "render") return RunRender(options, out, err);
    if (options.command == "click") return RunClick(options, out, err);
    if (options.command == "save") return RunSave(options, out, err);
    return RunEval(options, out, err);
  } catch (const FormError& error) {
    err << "vorlex: " << error.what() << '\n';
    return 2;
  }
}

}  // namespace vorlex::cli
