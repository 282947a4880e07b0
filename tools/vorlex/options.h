#pragma once
// The command line of the vorlex tool:
//   vorlex render SOURCE [-e STATEMENT]... [-o OUT.png] [--size WxH] [--now ISO-TIME] [--drive L=PATH]... [--design]
//   vorlex eval   SOURCE  -e STATEMENT...   [--size WxH] [--now ...] [--drive ...] [--design]
//   vorlex click  SOURCE [-e STATEMENT]... X Y   [--size WxH] [--now ...] [--drive ...] [--design]
//   vorlex save   SOURCE [-e STATEMENT]... [-o OUT.frm]   [--size WxH] [--design]
// SOURCE is a form file, --demo or --new.

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "vorlex/ClockService.h"

namespace vorlex::cli {

enum class SourceKind { None, New, Demo, File };

struct Options {
  bool help = false;    // --help or -h: print the usage and stop
  std::string command;  // "eval", "render", "click" or "save"
  SourceKind source = SourceKind::None;
  std::string sourcePath;  // the form file, for SourceKind::File
  // --size WxH; without it the source decides (60 x 21 pixels for --new).
  std::optional<int> widthPixels;
  std::optional<int> heightPixels;
  bool design = false;                  // --design: the control runs in design mode
  std::vector<std::string> statements;  // each -e, in order
  std::string outPath;                  // -o
  std::optional<LocalDateTime> now;     // --now: the clock stands still at this time
  std::map<char, std::string> drives;   // --drive L=PATH, the letter upper-cased
  float clickX = 0;                     // click's X and Y, pixels
  float clickY = 0;
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
