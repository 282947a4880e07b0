#pragma once
// The vorlex tool as a function of its arguments: what it writes and its exit
// status (0 success, 1 an automation error in render, click or save, 2 bad usage
// or a file that cannot be read or written).

#include <ostream>
#include <string>
#include <vector>

namespace vorlex::cli {

// args are the arguments after the program name.
int RunCommandLine(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace vorlex::cli
