// Picture and text records of a .frx file on arbitrary bytes: the first four
// bytes give the offset, the rest is the file. A RecordError, or a picture
// refused with automation error 481, is a correct outcome.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "persist/frx_record.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Picture.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 4) return 0;
  uint32_t offset = 0;
  for (size_t i = 0; i < 4; ++i) offset |= static_cast<uint32_t>(data[i]) << (8 * i);
  const std::string_view file(reinterpret_cast<const char*>(data + 4), size - 4);
  try {
    const std::string_view text = vorlex::frx::TextRecord(file, offset);
    if (text.data() < file.data() || text.data() + text.size() > file.data() + file.size()) __builtin_trap();
  } catch (const vorlex::frx::RecordError&) {
  }
  try {
    const std::string_view bytes = vorlex::frx::PictureRecord(file, offset);
    if (bytes.data() < file.data() || bytes.data() + bytes.size() > file.data() + file.size()) __builtin_trap();
    const vorlex::PicturePtr picture =
        vorlex::LoadPictureFromMemory(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    if (!picture || picture->PixelWidth() <= 0 || picture->PixelHeight() <= 0) __builtin_trap();
  } catch (const vorlex::frx::RecordError&) {
  } catch (const vorlex::AutomationError& error) {
    if (error.Number() != vorlex::kErrInvalidPicture) __builtin_trap();
  }
  return 0;
}
