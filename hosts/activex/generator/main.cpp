// vorlex_idlgen FOLDER          writes the generated sources into FOLDER
// vorlex_idlgen --check FOLDER  exits 1, naming each one, when FOLDER's copies differ

#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "type_library_source.h"

namespace {

std::vector<std::pair<std::string, std::string>> Outputs() {
  using namespace vorlex::activex;
  return {{"Vorlex.idl", TypeLibrarySource()},
          {"dual_interface.h", DualInterfaceHeader()},
          {"dual_methods.cpp", DualMethodsSource()}};
}

std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace

int main(int argc, char** argv) {
  const bool check = argc == 3 && std::strcmp(argv[1], "--check") == 0;
  if (argc != 2 && !check) {
    std::cerr << "usage: vorlex_idlgen [--check] FOLDER\n";
    return 2;
  }
  const std::string folder = argv[argc - 1];
  int stale = 0;
  for (const auto& [name, text] : Outputs()) {
    const std::string path = folder + "/" + name;
    if (check) {
      if (ReadFile(path) != text) {
        std::cerr << path << " is not what the automation table gives\n";
        ++stale;
      }
    } else if (!(std::ofstream(path, std::ios::binary) << text)) {
      std::cerr << "cannot write " << path << "\n";
      return 2;
    }
  }
  if (stale) std::cerr << "regenerate with: vorlex_idlgen " << folder << "\n";
  return stale ? 1 : 0;
}
