// The command line of the vorlex tool.

#include "options.h"

#include <cctype>
#include <cstddef>

#include "option_values.h"

namespace vorlex::cli {

namespace {

bool IsCommand(const std::string& word) {
  return word == "eval" || word == "render" || word == "click" || word == "save";
}

const std::string& ValueOf(const std::vector<std::string>& args, std::size_t& i, const std::string& what) {
  if (i + 1 >= args.size()) throw UsageError(args[i] + " needs " + what);
  return args[++i];
}

// A negative number is a click coordinate, not an option.
bool LooksLikeNumber(const std::string& arg) {
  return arg.size() > 1 && arg[0] == '-' && (std::isdigit(static_cast<unsigned char>(arg[1])) || arg[1] == '.');
}

void SetSource(Options& options, SourceKind kind, const std::string& path = {}) {
  if (options.source != SourceKind::None) throw UsageError("more than one SOURCE given");
  options.source = kind;
  options.sourcePath = path;
}

// Reads one option at args[i]; false when args[i] is not an option.
bool ReadOption(const std::vector<std::string>& args, std::size_t& i, Options& options) {
  const std::string& arg = args[i];
  if (arg == "--help" || arg == "-h") {
    options.help = true;
  } else if (arg == "-e") {
    options.statements.push_back(ValueOf(args, i, "a STATEMENT"));
  } else if (arg == "-o") {
    options.outPath = ValueOf(args, i, "a file name");
  } else if (arg == "--size") {
    const auto [width, height] = ParseSizeValue(ValueOf(args, i, "a size WxH"));
    options.widthPixels = width;
    options.heightPixels = height;
  } else if (arg == "--now") {
    options.now = ParseTimeValue(ValueOf(args, i, "a time"));
  } else if (arg == "--drive") {
    const auto [letter, path] = ParseDriveValue(ValueOf(args, i, "LETTER=PATH"));
    options.drives[letter] = path;
  } else if (arg == "--design") {
    options.design = true;
  } else if (arg == "--new") {
    SetSource(options, SourceKind::New);
  } else if (arg == "--demo") {
    SetSource(options, SourceKind::Demo);
  } else if (arg.size() > 1 && arg[0] == '-' && !LooksLikeNumber(arg)) {
    throw UsageError("unknown option \"" + arg + "\"", true);
  } else {
    return false;
  }
  return true;
}

// The words that are neither options nor their values: a form file and, for
// click, X and Y at the end.
void ReadPositionals(const std::vector<std::string>& words, Options& options) {
  std::size_t count = words.size();
  if (options.command == "click") {
    if (count < 2) throw UsageError("click needs the pixel X Y to release the mouse at");
    options.clickX = ParseCoordinate(words[count - 2]);
    options.clickY = ParseCoordinate(words[count - 1]);
    count -= 2;
  }
  for (std::size_t i = 0; i < count; ++i) {
    if (LooksLikeNumber(words[i])) throw UsageError("unknown option \"" + words[i] + "\"", true);
    SetSource(options, SourceKind::File, words[i]);
  }
}

void CheckComplete(const Options& options) {
  const std::string& command = options.command;
  if (options.source == SourceKind::None) throw UsageError(command + " needs a SOURCE: a form file, --demo or --new");
  if (command == "eval" && options.statements.empty()) throw UsageError("eval needs at least one -e STATEMENT");
  if (command == "eval" && !options.outPath.empty()) throw UsageError("eval writes no file: -o does not apply");
  if (command == "save" && (options.now || !options.drives.empty())) {
    throw UsageError("save paints nothing: --now and --drive do not apply");
  }
}

}  // namespace

std::string UsageText() {
  return "usage: vorlex render SOURCE [-e STATEMENT]... [-o OUT.png] [options]\n"
         "       vorlex eval   SOURCE -e STATEMENT... [options]\n"
         "       vorlex click  SOURCE [-e STATEMENT]... X Y [options]\n"
         "       vorlex save   SOURCE [-e STATEMENT]... [-o OUT.frm] [--size WxH] [--design]\n"
         "SOURCE is a form file, --demo (the built-in dashboard) or --new (a freshly\n"
         "placed control with its defaults, 60 x 21 pixels).\n"
         "  -e STATEMENT     a call in Basic syntax: Name, Name(args), Name = value,\n"
         "                   Name(args) = value; eval prints each value it yields.\n"
         "                   Values: numbers, \"strings\", True, False, Nothing and\n"
         "                   LoadPicture(\"file\") (BMP, ICO, GIF, JPEG or PNG)\n"
         "  -o FILE          where render writes its PNG (default: SOURCE's name .png)\n"
         "                   or save its form text\n"
         "  --size WxH       the control's client size in pixels\n"
         "  --now TIME       the clock stands at this local time, YYYY-MM-DD[THH:MM[:SS]]\n"
         "  --drive L=PATH   drive letter L reports the disk that holds PATH (C is /)\n"
         "  --design         run the control in design mode instead of user mode\n"
         "render paints once and writes the window as PNG; click paints once, releases\n"
         "the mouse at pixel (X, Y) and prints BlockClicked N; save writes the form text\n"
         "(to standard output without -o; pictures go beside the form as files).\n"
         "A form file's first Vorlex control is the one used.\n"
         "Exit status: 0 success, 1 an automation error in render, click or save, 2 bad\n"
         "usage or a file that cannot be read or written.\n";
}

Options ParseOptions(const std::vector<std::string>& args) {
  Options options;
  if (args.empty()) throw UsageError("", true);
  const std::string& command = args[0];
  if (command == "--help" || command == "-h") {
    options.help = true;
    return options;
  }
  if (!IsCommand(command)) throw UsageError("unknown command \"" + command + "\"", true);
  options.command = command;

  std::vector<std::string> positionals;
  for (std::size_t i = 1; i < args.size(); ++i) {
    if (!ReadOption(args, i, options)) positionals.push_back(args[i]);
  }
  if (options.help) return options;
  ReadPositionals(positionals, options);
  CheckComplete(options);
  return options;
}

}  // namespace vorlex::cli
