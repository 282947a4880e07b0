#include "picture/file_bytes.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace vorlex::picture {

std::optional<std::vector<uint8_t>> ReadFileBytes(const std::string& path) {
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return std::nullopt;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) return std::nullopt;
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::vector<uint8_t> bytes(static_cast<size_t>(size));
  in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (static_cast<size_t>(in.gcount()) != bytes.size()) return std::nullopt;
  return bytes;
}

}  // namespace vorlex::picture
