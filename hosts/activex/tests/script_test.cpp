// A real script host: the README's VBScript example run by the system's
// cscript against the registered control, its output checked line by line.

#include <string>

#include "ocx_fixture.h"
#include "process_run.h"

namespace vorlex::activex::test {
namespace {

std::wstring Wide(const std::string& text) { return std::wstring(text.begin(), text.end()); }

TEST(Script, TheReadmesVbscriptExampleRunsAsShown) {
  ASSERT_EQ(RunProcess(L"regsvr32.exe /s \"" + ServerPath() + L"\"").exitCode, 0u);
  const ProcessResult run = RunProcess(L"cscript.exe //nologo \"" + Wide(VORLEX_VBS_EXAMPLE) + L"\"");
  RunProcess(L"regsvr32.exe /s /u \"" + ServerPath() + L"\"");
  ASSERT_TRUE(run.started);
  std::string output;
  for (char c : run.output)
    if (c != '\r') output += c;
  EXPECT_EQ(output,
            "Blocks: 2\n"
            "cpu ends at: 40\n"
            "Second block's colour: FF8000\n"
            "Caption font: Arial\n"
            "Second block's text size: 12\n"
            "Error 9: Subscript out of range\n"
            "Error 6: Overflow\n");
}

}  // namespace
}  // namespace vorlex::activex::test
