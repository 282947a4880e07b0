#pragma once
// Records of the binary resource file (.frx) that sits beside a form. A form
// line refers to a record by its offset ("Form1.frx":0C3A).
//
// A picture record: a 32-bit little-endian size counted from the end of this
// field (the picture's length + 8), the signature "lt\0\0", the picture's
// length, then the picture file's bytes.
// A text record: a 32-bit little-endian length, then the text.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vorlex::frx {

// Why a record cannot be read.
class RecordError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

inline constexpr size_t kPictureHeaderSize = 12;

// Whether a picture record (its signature) starts at offset.
bool IsPictureRecord(std::string_view file, uint64_t offset);
// The picture bytes of the record at offset.
std::string_view PictureRecord(std::string_view file, uint64_t offset);
// The text of the record at offset.
std::string_view TextRecord(std::string_view file, uint64_t offset);

// Records as they are appended to a resource file.
std::string MakePictureRecord(std::string_view picture);
std::string MakeTextRecord(std::string_view text);

}  // namespace vorlex::frx
