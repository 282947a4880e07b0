// The vorlex tool as a function of its arguments.

#include "command_line.h"

#include "eval_command.h"
#include "options.h"

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
  return RunEval(options, out, err);
}

}  // namespace vorlex::cli
