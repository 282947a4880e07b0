#pragma once
// A whole file's bytes.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vorlex::picture {

// Nothing when the file does not exist or cannot be read (a folder, no
// permission). The path is UTF-8.
std::optional<std::vector<uint8_t>> ReadFileBytes(const std::string& path);

}  // namespace vorlex::picture
