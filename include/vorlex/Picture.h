#pragma once
// The picture object: a type, a handle and a size; shared by reference. It
// draws itself into a device context at its natural size. LoadPicture reads
// one from a file as Basic's function of that name does.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "vorlex/Object.h"

namespace vorlex {

// Picture types as the platform numbers them.
enum PictureType : int16_t {
  kPicTypeNone = 0,
  kPicTypeBitmap = 1,
  kPicTypeMetafile = 2,
  kPicTypeIcon = 3,
  kPicTypeEnhMetafile = 4,
};

class Picture : public Object {
 public:
  virtual int16_t Type() const = 0;
  // The picture's handle as automation sees it (32-bit); 0 for an empty picture.
  virtual uint32_t Handle() const = 0;
  // Size in pixels.
  virtual int32_t PixelWidth() const = 0;
  virtual int32_t PixelHeight() const = 0;
  // Draws the picture at its natural size with its top-left corner at (x, y)
  // of a device context (a gdi::HDC passed as an integer). Transparent pixels
  // of icons, GIFs and PNGs leave the destination as it was. An empty picture
  // draws nothing. False when the context could not be drawn into.
  virtual bool Render(uintptr_t hdc, int32_t x, int32_t y) const = 0;
  // The picture as a file of its own format, the bytes it was loaded from
  // (what IPicture::SaveAsFile gives with the original format kept); empty
  // when it has none (an empty picture, one made by other means).
  virtual std::vector<uint8_t> SaveAsFile() const { return {}; }
};

using PicturePtr = std::shared_ptr<Picture>;

// The picture Basic's LoadPicture("") gives: type none, handle 0, no size.
PicturePtr EmptyPicture();

// Basic's LoadPicture: an empty path gives EmptyPicture(); a file that is
// missing or cannot be read raises AutomationError 53 ("File not found"); one
// that is not a picture raises 481 ("Invalid picture"). The format is told by
// the file's content, not its name: BMP, ICO, GIF, JPEG and PNG everywhere,
// and on Windows whatever the platform's picture loader reads besides
// (metafiles). A relative path is relative to the current directory; paths are
// UTF-8.
PicturePtr LoadPicture(const std::string& path);

// The same from bytes in memory (a file's content, a resource); raises 481.
PicturePtr LoadPictureFromMemory(const uint8_t* data, size_t size);

}  // namespace vorlex
