#include "editors/about_box.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

#include "control/numeric_text.h"
#include "editors/preview_painter.h"
#include "vorlex/Numeric.h"
#include "vorlex/Variant.h"

#ifndef VORLEX_VERSION_MAJOR
#error "the build gives the control's version"
#endif

namespace vorlex::editors {

namespace {
constexpr std::string_view kPanel = "Picture1";
constexpr int16_t kInnerCircleGradient = 9;

std::string HexDigits(uint8_t byte) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  if (byte >= 16) text += kDigits[byte >> 4];
  text += kDigits[byte & 15];
  return text;
}
}  // namespace

AboutBox::AboutBox(PageView& view, AboutSystem& system, std::function<float()> random)
    : view_(view), system_(system), random_(std::move(random)) {}

std::string AboutBox::VersionLine() {
  return "Version " + std::to_string(VORLEX_VERSION_MAJOR) + "." + std::to_string(VORLEX_VERSION_MINOR) + "." +
         std::to_string(VORLEX_VERSION_PATCH);
}

std::vector<AboutBox::Label> AboutBox::Labels() {
  return {
      {"lblName", std::string(kName)},
      {"lblVersion", VersionLine()},
      {"lblInformation",
       "For more information on our products, contact us at :\n"
       "Mail: the Vorlex developers, through the project's issues\n"
       "Web: the Vorlex project's README"},
      {"lblMaker", "Vorlex, the multi-purpose bar control, is made by the Vorlex project."},
  };
}

void AboutBox::Form_Load() {
  if (!random_) {
    auto engine = std::make_shared<std::minstd_rand>(
        static_cast<unsigned>(std::chrono::steady_clock::now().time_since_epoch().count()));
    random_ = [engine] { return std::uniform_real_distribution<float>(0.0f, 1.0f)(*engine); };
  }
  view_.SetBackColor(kPanel, kPanelBackColor);
  for (const Label& label : Labels()) view_.SetText(label.control, label.text);
  depth_ = PreviewDepth(view_, kPanel);
}

// At 256 colours or fewer the panel keeps its plain background; above, a new
// granularity is drawn for every paint.
void AboutBox::Picture1_Paint() {
  if (depth_ <= 8) return;
  float drawn = random_();
  if (!(drawn >= 0.0f && drawn < 1.0f)) drawn = 0.0f;
  lastGranularity_ = static_cast<int16_t>(IntFloor(static_cast<double>(drawn) * 5.0));
  PaintGradientPreview(view_, kPanel, kInnerCircleGradient, lastGranularity_, kPanelColor, kPanelColorEnd);
}

void AboutBox::StartSysInfo() {
  std::string path;
  if (GetKeyValue(kHKeyLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path)) {
    system_.StartProgram(path);
    return;
  }
  if (GetKeyValue(kHKeyLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", path)) {
    const std::string program = path + "\\MSINFO32.EXE";
    if (system_.FileExists(program)) {
      system_.StartProgram(program);
      return;
    }
  }
  system_.MessageBox(std::string(kUnavailable));
}

bool AboutBox::GetKeyValue(uint32_t keyRoot, const std::string& keyName, const std::string& subKeyRef,
                           std::string& keyVal) {
  uintptr_t key = 0;
  if (system_.RegOpenKeyExA(keyRoot, keyName, kKeyAllAccess, &key) != 0) return false;
  std::vector<uint8_t> buffer(1024, 0);
  uint32_t size = 1024;
  uint32_t type = 0;
  if (system_.RegQueryValueExA(key, subKeyRef, &type, buffer.data(), &size) != 0) {
    system_.RegCloseKey(key);
    return false;
  }
  size = std::min<uint32_t>(size, 1024);
  if (type == kRegSz) {
    size_t end = 0;
    while (end < size && buffer[end] != 0) ++end;
    keyVal.assign(reinterpret_cast<const char*>(buffer.data()), end);
  } else if (type == kRegDword) {
    // Each byte's hexadecimal digits, unpadded, from the most significant
    // byte down, read back as one hexadecimal literal.
    std::string digits;
    for (uint32_t i = std::min<uint32_t>(size, 4); i > 0; --i) digits += HexDigits(buffer[i - 1]);
    keyVal = FormatNumber(ParseNumericText("&H" + digits).value_or(0.0));
  }
  system_.RegCloseKey(key);
  return true;
}

}  // namespace vorlex::editors
