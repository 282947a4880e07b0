#pragma once
// Automation errors as a host sees them: the runtime's standard number and text.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace vorlex {

// The standard error numbers the control raises or a dispatcher reports.
enum ErrorNumber : int32_t {
  kErrInvalidCall = 5,
  kErrOverflow = 6,
  kErrOutOfMemory = 7,
  kErrSubscript = 9,
  kErrDivisionByZero = 11,
  kErrTypeMismatch = 13,
  kErrFileNotFound = 53,
  kErrInvalidFileFormat = 321,
  kErrObjectNotSet = 91,
  kErrInvalidPropertyValue = 380,
  kErrReadOnlyProperty = 383,
  kErrGetNotAtRunTime = 393,
  kErrObjectRequired = 424,
  kErrNotSupported = 438,
  kErrArgumentNotOptional = 449,
  kErrWrongArguments = 450,
  kErrInvalidPicture = 481,
};

// The runtime's text for a standard error number; "Application-defined or
// object-defined error" for numbers it has no text of its own for.
std::string StandardErrorText(int32_t number);

class AutomationError : public std::runtime_error {
 public:
  explicit AutomationError(int32_t number);
  AutomationError(int32_t number, const std::string& description);
  int32_t Number() const noexcept { return number_; }
  std::string Description() const { return what(); }

 private:
  int32_t number_;
};

[[noreturn]] void RaiseError(int32_t number);

}  // namespace vorlex
