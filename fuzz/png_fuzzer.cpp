// The PNG decoder (libpng) on arbitrary bytes.

#include "fuzz_input.h"
#include "picture/png_decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  return vorlex::fuzz::RunDecoder(data, size, vorlex::picture::DecodePng);
}
