// The arithmetic rules of the control, encoded once.

#include "vorlex/Numeric.h"

#include <cmath>
#include <limits>

#include "vorlex/AutomationError.h"

namespace vorlex {

namespace {
template <class T>
T FitOrOverflow(double rounded) {
  if (!(rounded >= static_cast<double>(std::numeric_limits<T>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<T>::max()))) {
    RaiseError(kErrOverflow);
  }
  return static_cast<T>(rounded);
}

template <class T>
T NarrowOrOverflow(int64_t value) {
  if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) RaiseError(kErrOverflow);
  return static_cast<T>(value);
}
}  // namespace

double RoundHalfEven(double value) {
  if (!std::isfinite(value)) return value;
  const double floor = std::floor(value);
  const double diff = value - floor;
  if (diff < 0.5) return floor;
  if (diff > 0.5) return floor + 1.0;
  return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1.0;
}

double IntFloor(double value) { return std::floor(value); }

int16_t ToInteger(double value) { return FitOrOverflow<int16_t>(RoundHalfEven(value)); }
int32_t ToLong(double value) { return FitOrOverflow<int32_t>(RoundHalfEven(value)); }
uint8_t ToByte(double value) { return FitOrOverflow<uint8_t>(RoundHalfEven(value)); }

float ToSingle(double value) {
  if (std::isnan(value)) return std::numeric_limits<float>::quiet_NaN();
  const auto single = static_cast<float>(value);
  if (std::isinf(single) && !std::isinf(value)) RaiseError(kErrOverflow);
  return single;
}

int16_t NarrowToInteger(int64_t value) { return NarrowOrOverflow<int16_t>(value); }
int32_t NarrowToLong(int64_t value) { return NarrowOrOverflow<int32_t>(value); }
uint8_t NarrowToByte(int64_t value) { return NarrowOrOverflow<uint8_t>(value); }

int16_t CheckedAdd(int16_t a, int16_t b) { return NarrowToInteger(int64_t{a} + b); }
int16_t CheckedSub(int16_t a, int16_t b) { return NarrowToInteger(int64_t{a} - b); }
int16_t CheckedMul(int16_t a, int16_t b) { return NarrowToInteger(int64_t{a} * b); }
int32_t CheckedAdd(int32_t a, int32_t b) { return NarrowToLong(int64_t{a} + b); }
int32_t CheckedSub(int32_t a, int32_t b) { return NarrowToLong(int64_t{a} - b); }
int32_t CheckedMul(int32_t a, int32_t b) { return NarrowToLong(int64_t{a} * b); }

int16_t IntegerDivide(int16_t a, int16_t b) {
  if (b == 0) RaiseError(kErrDivisionByZero);
  return NarrowToInteger(int64_t{a} / b);
}
int32_t IntegerDivide(int32_t a, int32_t b) {
  if (b == 0) RaiseError(kErrDivisionByZero);
  return NarrowToLong(int64_t{a} / b);
}

}  // namespace vorlex
