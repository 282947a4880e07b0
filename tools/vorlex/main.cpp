// The vorlex command-line tool.

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "command_line.h"

int main(int argc, char** argv) {
  try {
    const std::vector<std::string> args(argv + 1, argv + argc);
    return vorlex::cli::RunCommandLine(args, std::cout, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "vorlex: " << error.what() << '\n';
    return 1;
  }
}
