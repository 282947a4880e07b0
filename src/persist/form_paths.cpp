#include "persist/form_paths.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace vorlex::form {

namespace {
std::filesystem::path FromUtf8(const std::string& s) {
  return std::filesystem::path(std::u8string(s.begin(), s.end()));
}
std::string ToUtf8(const std::filesystem::path& p) {
  const std::u8string s = p.u8string();
  return std::string(s.begin(), s.end());
}
}  // namespace

std::string BesideForm(const std::string& formPath, const std::string& relative) {
  const std::filesystem::path rel = FromUtf8(relative);
  if (rel.is_absolute()) return relative;
  return ToUtf8(FromUtf8(formPath).parent_path() / rel);
}

std::string FormStem(const std::string& formPath) { return ToUtf8(FromUtf8(formPath).stem()); }

bool WriteWholeFile(const std::string& path, const std::string& bytes) {
  std::ofstream out(FromUtf8(path), std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  return static_cast<bool>(out);
}

bool ReadWholeFile(const std::string& path, std::string& bytes) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(FromUtf8(path), error)) return false;
  std::ifstream in(FromUtf8(path), std::ios::binary);
  if (!in) return false;
  bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

}  // namespace vorlex::form
