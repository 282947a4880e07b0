#include "persist/frx_record.h"

namespace vorlex::frx {

namespace {

constexpr std::string_view kSignature("lt\0\0", 4);

uint32_t Word32(std::string_view bytes, size_t at) {
  uint32_t value = 0;
  for (size_t i = 0; i < 4; ++i) value |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
  return value;
}

void AppendWord32(std::string& out, uint64_t value) {
  for (size_t i = 0; i < 4; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

std::string Hex(uint64_t value) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  do {
    text.insert(text.begin(), kDigits[value & 0xF]);
    value >>= 4;
  } while (value != 0);
  return text;
}

// The header of a record at offset must lie inside the file.
void RequireHeader(std::string_view file, uint64_t offset, size_t header) {
  if (offset >= file.size()) {
    throw RecordError("offset " + Hex(offset) + " is past the end of the resource file (" +
                      std::to_string(file.size()) + " bytes)");
  }
  if (file.size() - offset < header) throw RecordError("the record at offset " + Hex(offset) + " is cut short");
}

std::string_view Body(std::string_view file, uint64_t start, uint64_t length, uint64_t offset) {
  if (length > file.size() - start) {
    throw RecordError("the record at offset " + Hex(offset) + " runs past the end of the resource file");
  }
  return file.substr(start, length);
}

}  // namespace

bool IsPictureRecord(std::string_view file, uint64_t offset) {
  return offset < file.size() && file.size() - offset >= kPictureHeaderSize &&
         file.substr(static_cast<size_t>(offset) + 4, 4) == kSignature;
}

std::string_view PictureRecord(std::string_view file, uint64_t offset) {
  RequireHeader(file, offset, kPictureHeaderSize);
  const auto at = static_cast<size_t>(offset);
  if (file.substr(at + 4, 4) != kSignature) {
    throw RecordError("the record at offset " + Hex(offset) + " is not a picture (no lt signature)");
  }
  // The length after the signature is the picture's own; the size before it
  // (the length + 8) is not needed.
  return Body(file, offset + kPictureHeaderSize, Word32(file, at + 8), offset);
}

std::string_view TextRecord(std::string_view file, uint64_t offset) {
  RequireHeader(file, offset, 4);
  return Body(file, offset + 4, Word32(file, static_cast<size_t>(offset)), offset);
}

std::string MakePictureRecord(std::string_view picture) {
  std::string record;
  AppendWord32(record, uint64_t{picture.size()} + 8);
  record += kSignature;
  AppendWord32(record, picture.size());
  record += picture;
  return record;
}

std::string MakeTextRecord(std::string_view text) {
  std::string record;
  AppendWord32(record, text.size());
  record += text;
  return record;
}

}  // namespace vorlex::frx
