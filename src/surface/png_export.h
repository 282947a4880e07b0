#pragma once
// Surfaces saved as PNG files: for tests that fail at pixels, and for the tool.

#include <string>

#include "platform/gdi.h"

namespace vorlex {

// Writes 8-bit RGB, through libpng where the build has it, else with our own
// uncompressed encoder. False, with the reason in *error, when the image is
// empty or the file cannot be written. The path is UTF-8.
bool WritePng(const gdi::Pixels& pixels, const std::string& path, std::string* error);

}  // namespace vorlex
