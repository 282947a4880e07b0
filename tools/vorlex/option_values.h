#pragma once
// The values that options of the vorlex tool take: sizes, times, drives and
// click coordinates. Each throws UsageError naming what it expected.

#include <string>
#include <utility>

#include "options.h"
#include "vorlex/ClockService.h"

namespace vorlex::cli {

// "WxH" in pixels, each 1 to 32767.
std::pair<int, int> ParseSizeValue(const std::string& text);

// "YYYY-MM-DD", "YYYY-MM-DDTHH:MM" or "YYYY-MM-DDTHH:MM:SS" (a blank may stand for T).
LocalDateTime ParseTimeValue(const std::string& text);

// "L=PATH": a drive letter and the folder whose file system it reports.
std::pair<char, std::string> ParseDriveValue(const std::string& text);

// A decimal pixel coordinate of click.
float ParseCoordinate(const std::string& text);

}  // namespace vorlex::cli
