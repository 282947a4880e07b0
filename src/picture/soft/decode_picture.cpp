#include "picture/soft/decode_picture.h"

#include "picture/bmp_decoder.h"
#include "picture/format.h"
#include "picture/ico_decoder.h"
#include "picture/png_decoder.h"
#include "picture/soft/gif_decoder.h"
#include "picture/soft/jpeg_decoder.h"
#include "vorlex/Picture.h"

namespace vorlex::picture {

DecodedPicture DecodePicture(ByteView bytes) {
  switch (DetectFormat(bytes)) {
    case PictureFormat::Bmp:
      return {DecodeBmp(bytes), kPicTypeBitmap};
    case PictureFormat::Icon:
      return {DecodeIco(bytes), kPicTypeIcon};
    case PictureFormat::Gif:
      return {DecodeGif(bytes), kPicTypeBitmap};
    case PictureFormat::Jpeg:
      return {DecodeJpeg(bytes), kPicTypeBitmap};
    case PictureFormat::Png:
      return {DecodePng(bytes), kPicTypeBitmap};
    default:
      RejectPicture();
  }
}

}  // namespace vorlex::picture
