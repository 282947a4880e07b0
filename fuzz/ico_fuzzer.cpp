// The icon decoder on arbitrary bytes (DIB images with masks, PNG images).

#include "fuzz_input.h"
#include "picture/ico_decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  return vorlex::fuzz::RunDecoder(data, size, vorlex::picture::DecodeIco);
}
