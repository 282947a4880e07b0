#pragma once
// The command line of the vorlex tool:
//   vorlex eval --new [--size WxH] [--design] -e STATEMENT [-e STATEMENT]...

#include <stdexcept>
#include <string>
#include <vector>

#include "vorlex/HeadlessSite.h"

namespace vorlex::cli {

struct Options {
  bool help = false;    // --help or -h: print the usage and stop
  std::string command;  // "eval"
  // The source: only --new (a freshly placed control with its defaults) so far.
  int widthPixels = HeadlessSite::kDefaultWidth;  // --size WxH
  int heightPixels = HeadlessSite::kDefaultHeight;
  bool design = false;                  // --design: the control runs in design mode
  std::vector<std::string> statements;  // each -e, in order
};

// Bad usage. The message is one line naming the problem; showUsage asks for the
// usage text after it (unknown commands and options). An empty message with
// showUsage is a bare command line.
class UsageError : public std::runtime_error {
 public:
  explicit UsageError(const std::string& message, bool showUsage = false)
      : std::runtime_error(message), showUsage_(showUsage) {}
  bool ShowUsage() const { return showUsage_; }

 private:
  bool showUsage_;
};

// Reads the arguments after the program name; throws UsageError.
Options ParseOptions(const std::vector<std::string>& args);

// The usage text, several lines ending in a newline.
std::string UsageText();

}  // namespace vorlex::cli
