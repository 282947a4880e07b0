#pragma once
// Pixels written as a PNG file through the library's exporter, apart from the
// Windows headers, which the library's GDI declarations do not mix with.

#include <cstdint>
#include <string>
#include <vector>

namespace vorlex::activex::tools {

// 0x00RRGGBB pixels, rows top first. False, with the reason, on failure.
bool SavePng(int width, int height, const std::vector<uint32_t>& pixels, const std::string& path, std::string* error);

}  // namespace vorlex::activex::tools
