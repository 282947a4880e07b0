#pragma once
// The vorlex tool's command line run inside the test: its exit status and what
// it printed, or the usage problem options have.

#include <sstream>
#include <string>
#include <vector>

#include "command_line.h"
#include "options.h"

namespace vorlex::tool_test {

struct CommandResult {
  int status;
  std::string out;
  std::string err;
};

inline CommandResult RunTool(const std::vector<std::string>& args) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = cli::RunCommandLine(args, out, err);
  return {status, out.str(), err.str()};
}

// The UsageError's message, or "(accepted)".
inline std::string UsageProblem(const std::vector<std::string>& args) {
  try {
    cli::ParseOptions(args);
  } catch (const cli::UsageError& error) {
    return error.what();
  }
  return "(accepted)";
}

}  // namespace vorlex::tool_test
