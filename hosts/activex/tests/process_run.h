#pragma once
// Runs a program of the system (regsvr32, reg, cscript) and collects what it
// writes and its exit code.

#include <string>

namespace vorlex::activex::test {

struct ProcessResult {
  bool started = false;
  unsigned long exitCode = 0;
  std::string output;
};

ProcessResult RunProcess(const std::wstring& commandLine);

}  // namespace vorlex::activex::test
