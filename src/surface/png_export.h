#pragma once
// Surfaces saved as PNG files: for tests that fail at pixels, and for the tool.

#include <string>

#include "platform/gdi.h"

namespace vorlex {

// Writes 8-bit RGB. False, with the reason in *error, when the file cannot be
// written or the build has no PNG support.
bool WritePng(const gdi::Pixels& pixels, const std::string& path, std::string* error);

}  // namespace vorlex
