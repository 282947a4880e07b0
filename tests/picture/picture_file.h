#pragma once
// A picture file on disk for tests outside the picture suite (the command-line
// tool's): a 2 x 1 24-bit BMP, red then blue, in a folder of its own that is
// removed with it. Header-only, so any test executable can use it.

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

namespace vorlex::picture_test {

class PictureFile {
 public:
  PictureFile() {
    static std::atomic<unsigned> counter{0};
    folder_ = std::filesystem::temp_directory_path() /
              ("vorlex-file-" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()) + "-" +
               std::to_string(counter.fetch_add(1)));
    std::filesystem::create_directories(folder_);
    Write("two.bmp", TwoPixelBmp());
    Write("text.bmp", {'n', 'o', 't', ' ', 'a', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'});
  }
  ~PictureFile() {
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }
  PictureFile(const PictureFile&) = delete;
  PictureFile& operator=(const PictureFile&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  // The BMP; a file that is not a picture; a file that does not exist.
  std::string Bitmap() const { return Utf8(folder_ / "two.bmp"); }
  std::string NotAPicture() const { return Utf8(folder_ / "text.bmp"); }
  std::string Missing() const { return Utf8(folder_ / "missing.bmp"); }

 private:
  static std::string Utf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
  }

  static std::vector<uint8_t> TwoPixelBmp() {
    return {'B', 'M', 62,   0,    0, 0, 0, 0, 0, 0, 54, 0, 0, 0,                     // file header
            40,  0,   0,    0,    2, 0, 0, 0, 1, 0, 0,  0, 1, 0, 24, 0, 0, 0, 0, 0,  // size, planes, bits
            8,   0,   0,    0,    0, 0, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0, 0,  // image size, resolution, colours
            0,   0,   0xFF, 0xFF, 0, 0, 0, 0};                                       // red, blue, padding
  }

  void Write(const std::string& name, const std::vector<uint8_t>& bytes) const {
    std::ofstream out(folder_ / name, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  }

  std::filesystem::path folder_;
};

}  // namespace vorlex::picture_test
