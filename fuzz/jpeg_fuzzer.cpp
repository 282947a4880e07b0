// The JPEG decoder (libjpeg) on arbitrary bytes.

#include "fuzz_input.h"
#include "picture/soft/jpeg_decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  return vorlex::fuzz::RunDecoder(data, size, vorlex::picture::DecodeJpeg);
}
