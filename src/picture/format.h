#pragma once
// Which kind of picture bytes hold, told by their first bytes.

#include "picture/byte_view.h"

namespace vorlex::picture {

enum class PictureFormat { Unknown, Bmp, Icon, Gif, Jpeg, Png, Metafile, EnhancedMetafile };

PictureFormat DetectFormat(ByteView bytes);

}  // namespace vorlex::picture
