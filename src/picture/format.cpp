#include "picture/format.h"

#include <cstring>
#include <initializer_list>

namespace vorlex::picture {

namespace {

bool StartsWith(ByteView bytes, size_t offset, std::initializer_list<uint8_t> magic) {
  if (!bytes.Has(offset, magic.size())) return false;
  return std::memcmp(bytes.data() + offset, magic.begin(), magic.size()) == 0;
}

bool IsIcon(ByteView bytes) { return StartsWith(bytes, 0, {0, 0, 1, 0}) || StartsWith(bytes, 0, {0, 0, 2, 0}); }

// An enhanced metafile begins with its header record (type 1) whose signature
// at offset 40 is " EMF".
bool IsEnhancedMetafile(ByteView bytes) {
  return StartsWith(bytes, 0, {1, 0, 0, 0}) && StartsWith(bytes, 40, {' ', 'E', 'M', 'F'});
}

}  // namespace

PictureFormat DetectFormat(ByteView bytes) {
  if (StartsWith(bytes, 0, {'B', 'M'})) return PictureFormat::Bmp;
  if (StartsWith(bytes, 0, {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'})) return PictureFormat::Png;
  if (StartsWith(bytes, 0, {'G', 'I', 'F', '8', '7', 'a'}) || StartsWith(bytes, 0, {'G', 'I', 'F', '8', '9', 'a'}))
    return PictureFormat::Gif;
  if (StartsWith(bytes, 0, {0xFF, 0xD8, 0xFF})) return PictureFormat::Jpeg;
  if (IsIcon(bytes)) return PictureFormat::Icon;
  if (StartsWith(bytes, 0, {0xD7, 0xCD, 0xC6, 0x9A})) return PictureFormat::Metafile;  // placeable metafile
  if (IsEnhancedMetafile(bytes)) return PictureFormat::EnhancedMetafile;
  return PictureFormat::Unknown;
}

}  // namespace vorlex::picture
