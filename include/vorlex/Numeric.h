#pragma once
// The control's arithmetic: fixed integer widths with overflow errors, round half
// to even for every floating-to-integer conversion, Int flooring, 16-bit booleans.

#include <cstdint>

namespace vorlex {

// A 16-bit boolean: true is all bits set (-1). Several drawing and hit tests
// accept only that canonical value, so it is stored as passed.
using VARIANT_BOOL = int16_t;
inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;
constexpr VARIANT_BOOL ToVariantBool(bool b) { return b ? VARIANT_TRUE : VARIANT_FALSE; }
constexpr bool IsCanonicalTrue(VARIANT_BOOL b) { return b == VARIANT_TRUE; }

// Nearest integer value, ties to even (2.5 -> 2, 3.5 -> 4, -2.5 -> -2).
double RoundHalfEven(double value);
// Basic's Int: the largest integer not above the value (-2.5 -> -3).
double IntFloor(double value);

// Conversions with the automation rules: round half to even, then error 6 when
// the result does not fit (NaN does not fit either).
int16_t ToInteger(double value);
int32_t ToLong(double value);
uint8_t ToByte(double value);
float ToSingle(double value);

// Narrowing of a wider integer, error 6 when it does not fit.
int16_t NarrowToInteger(int64_t value);
int32_t NarrowToLong(int64_t value);
uint8_t NarrowToByte(int64_t value);

// Checked arithmetic on 16- and 32-bit integers, error 6 on overflow.
int16_t CheckedAdd(int16_t a, int16_t b);
int16_t CheckedSub(int16_t a, int16_t b);
int16_t CheckedMul(int16_t a, int16_t b);
int32_t CheckedAdd(int32_t a, int32_t b);
int32_t CheckedSub(int32_t a, int32_t b);
int32_t CheckedMul(int32_t a, int32_t b);
// Basic's integer division \: truncates toward zero; error 11 for a zero
// divisor, error 6 when the quotient does not fit.
int16_t IntegerDivide(int16_t a, int16_t b);
int32_t IntegerDivide(int32_t a, int32_t b);

}  // namespace vorlex
