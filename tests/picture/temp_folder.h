#pragma once
// A folder of its own for a test's files, removed with everything in it at the
// end.

#include <filesystem>
#include <string>

#include "writers/bytes.h"

namespace vorlex::picture_test {

class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // Writes a file in the folder; its path as UTF-8, for LoadPicture.
  std::string Write(const std::string& name, const Bytes& bytes) const;
  // The UTF-8 path of a name in the folder.
  std::string PathOf(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace vorlex::picture_test
