// JPEG through libjpeg. libjpeg reports a fatal error by calling error_exit,
// which here jumps back to DecodeInto with longjmp: only plain data lives in
// that function between setjmp and the jump, so no destructor is skipped.

#include "picture/soft/jpeg_decoder.h"

#include <csetjmp>
#include <cstdio>
#include <vector>

// After <cstdio>: jpeglib.h uses FILE and size_t without including them.
#include <jpeglib.h>

namespace vorlex::picture {

namespace {

// More scans than any real progressive file has; a file with more is refused
// rather than decoded for minutes.
constexpr int kMaxScans = 256;

struct ErrorManager {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
};

[[noreturn]] void OnError(j_common_ptr info) { std::longjmp(reinterpret_cast<ErrorManager*>(info->err)->jump, 1); }

void Silent(j_common_ptr) {}

void LimitScans(j_common_ptr info) {
  const auto* decompress = reinterpret_cast<j_decompress_ptr>(info);
  if (decompress->input_scan_number > kMaxScans) OnError(info);
}

// Destroys the decompressor on every path, including the jump.
struct Decompressor {
  jpeg_decompress_struct info{};
  ErrorManager errors{};
  jpeg_progress_mgr progress{};
  ~Decompressor() { jpeg_destroy_decompress(&info); }
};

void CopyRow(const std::vector<uint8_t>& row, int32_t y, Image& image) {
  for (int32_t x = 0; x < image.width; ++x) {
    const size_t i = static_cast<size_t>(x) * 3;
    image.Set(x, y, (static_cast<uint32_t>(row[i]) << 16) | (static_cast<uint32_t>(row[i + 1]) << 8) | row[i + 2]);
  }
}

void ReadRows(jpeg_decompress_struct& info, std::vector<uint8_t>& row, Image& image) {
  JSAMPROW rows[1] = {row.data()};
  while (info.output_scanline < info.output_height) {
    const auto y = static_cast<int32_t>(info.output_scanline);
    if (jpeg_read_scanlines(&info, rows, 1) != 1) break;
    CopyRow(row, y, image);
  }
}

// False when libjpeg gave up. image and row are the caller's, so nothing that
// owns memory is created here after setjmp.
bool DecodeInto(Decompressor& d, ByteView file, Image& image, std::vector<uint8_t>& row) {
  d.info.err = jpeg_std_error(&d.errors.manager);
  d.errors.manager.error_exit = OnError;
  d.errors.manager.output_message = Silent;
  if (setjmp(d.errors.jump) != 0) return false;
  jpeg_create_decompress(&d.info);
  d.progress.progress_monitor = LimitScans;
  d.info.progress = &d.progress;
  jpeg_mem_src(&d.info, file.data(), static_cast<unsigned long>(file.size()));
  jpeg_read_header(&d.info, TRUE);
  d.info.out_color_space = JCS_RGB;
  image = NewImage(d.info.image_width, d.info.image_height);
  row.resize(static_cast<size_t>(image.width) * 3);
  jpeg_start_decompress(&d.info);
  if (d.info.output_components != 3 || static_cast<int64_t>(d.info.output_width) != image.width) return false;
  ReadRows(d.info, row, image);
  jpeg_finish_decompress(&d.info);
  return true;
}

}  // namespace

Image DecodeJpeg(ByteView file) {
  Require(file.size() > 0);
  Image image;
  std::vector<uint8_t> row;
  Decompressor decompressor;
  Require(DecodeInto(decompressor, file, image, row));
  return image;
}

}  // namespace vorlex::picture
