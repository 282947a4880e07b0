#pragma once
// How a decoder gives up: the bytes are not a picture it can read, which
// automation reports as error 481 ("Invalid picture").

#include "vorlex/AutomationError.h"

namespace vorlex::picture {

[[noreturn]] inline void RejectPicture() { RaiseError(kErrInvalidPicture); }

inline void Require(bool condition) {
  if (!condition) RejectPicture();
}

}  // namespace vorlex::picture
