// LoadPicture: the file's bytes, then LoadPictureFromMemory.

#include <optional>
#include <vector>

#include "picture/file_bytes.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Picture.h"

namespace vorlex {

PicturePtr LoadPicture(const std::string& path) {
  if (path.empty()) return EmptyPicture();
  const std::optional<std::vector<uint8_t>> bytes = picture::ReadFileBytes(path);
  if (!bytes) RaiseError(kErrFileNotFound);
  return LoadPictureFromMemory(bytes->data(), bytes->size());
}

}  // namespace vorlex
