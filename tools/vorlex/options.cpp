// The command line of the vorlex tool.

#include "options.h"

#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>

namespace vorlex::cli {

namespace {

constexpr int kMaxPixels = 32767;

[[noreturn]] void BadSize(const std::string& text) {
  throw UsageError("--size expects WIDTHxHEIGHT in pixels (1 to 32767 each), e.g. 200x30, not \"" + text + "\"");
}

// "WxH" in pixels, each 1 to 32767.
void ParseSize(const std::string& text, Options& options) {
  const std::size_t x = text.find_first_of("xX");
  if (x == std::string::npos) BadSize(text);
  const auto number = [&](std::string_view part) {
    int value = 0;
    const auto result = std::from_chars(part.data(), part.data() + part.size(), value);
    if (part.empty() || result.ec != std::errc() || result.ptr != part.data() + part.size() || value < 1 ||
        value > kMaxPixels) {
      BadSize(text);
    }
    return value;
  };
  const std::string_view all(text);
  options.widthPixels = number(all.substr(0, x));
  options.heightPixels = number(all.substr(x + 1));
}

const std::string& ValueOf(const std::vector<std::string>& args, std::size_t& i, const std::string& what) {
  if (i + 1 >= args.size()) throw UsageError(args[i] + " needs " + what);
  return args[++i];
}

}  // namespace

std::string UsageText() {
  return "usage: vorlex eval --new [--size WxH] [--design] -e STATEMENT [-e STATEMENT]...\n"
         "  --new          a freshly placed control with its defaults (60 x 21 pixels)\n"
         "  --size WxH     the control's client size in pixels\n"
         "  --design       run the control in design mode instead of user mode\n"
         "  -e STATEMENT   a call in Basic syntax: Name, Name(args), Name = value,\n"
         "                 Name(args) = value; eval prints each value it yields.\n"
         "                 Values: numbers, \"strings\", True, False, Nothing and\n"
         "                 LoadPicture(\"file\") (BMP, ICO, GIF, JPEG or PNG)\n";
}

Options ParseOptions(const std::vector<std::string>& args) {
  Options options;
  if (args.empty()) throw UsageError("", true);
  const std::string& command = args[0];
  if (command == "--help" || command == "-h") {
    options.help = true;
    return options;
  }
  if (command == "render" || command == "click" || command == "save") {
    throw UsageError("the " + command + " command is not available in this build yet");
  }
  if (command != "eval") throw UsageError("unknown command \"" + command + "\"", true);
  options.command = command;

  bool haveSource = false;
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--help" || arg == "-h") {
      options.help = true;
    } else if (arg == "-e") {
      options.statements.push_back(ValueOf(args, i, "a STATEMENT"));
    } else if (arg == "--size") {
      ParseSize(ValueOf(args, i, "a size WxH"), options);
    } else if (arg == "--design") {
      options.design = true;
    } else if (arg == "--new") {
      if (haveSource) throw UsageError("more than one SOURCE given");
      haveSource = true;
    } else if (arg == "--demo") {
      throw UsageError("--demo: the built-in demo form is not supported by this build yet");
    } else if (arg == "--now" || arg == "--drive") {
      throw UsageError(arg + " is not supported by this build yet");
    } else if (arg.size() > 1 && arg[0] == '-') {
      throw UsageError("unknown option \"" + arg + "\"", true);
    } else {
      throw UsageError(arg + ": form files are not supported by this build yet (use --new)");
    }
  }
  if (options.help) return options;
  if (!haveSource) throw UsageError("eval needs a SOURCE: --new");
  if (options.statements.empty()) throw UsageError("eval needs at least one -e STATEMENT");
  return options;
}

}  // namespace vorlex::cli
