#include "temp_folder.h"

#include <atomic>
#include <chrono>
#include <fstream>
#include <system_error>

namespace vorlex::picture_test {

namespace {

std::string Utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::filesystem::path Utf8Path(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

}  // namespace

TempFolder::TempFolder() {
  static std::atomic<unsigned> counter{0};
  const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
  path_ = std::filesystem::temp_directory_path() /
          ("vorlex-picture-" + std::to_string(stamp) + "-" + std::to_string(counter.fetch_add(1)));
  std::filesystem::create_directories(path_);
}

TempFolder::~TempFolder() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
}

std::string TempFolder::PathOf(const std::string& name) const { return Utf8(path_ / Utf8Path(name)); }

std::string TempFolder::Write(const std::string& name, const Bytes& bytes) const {
  std::ofstream out(path_ / Utf8Path(name), std::ios::binary);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return PathOf(name);
}

}  // namespace vorlex::picture_test
