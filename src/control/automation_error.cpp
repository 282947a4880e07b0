#include "vorlex/AutomationError.h"

namespace vorlex {

std::string StandardErrorText(int32_t number) {
  switch (number) {
    case kErrInvalidCall:
      return "Invalid procedure call or argument";
    case kErrOverflow:
      return "Overflow";
    case kErrOutOfMemory:
      return "Out of memory";
    case kErrSubscript:
      return "Subscript out of range";
    case kErrDivisionByZero:
      return "Division by zero";
    case kErrTypeMismatch:
      return "Type mismatch";
    case kErrFileNotFound:
      return "File not found";
    case kErrObjectNotSet:
      return "Object variable or With block variable not set";
    case kErrInvalidFileFormat:
      return "Invalid file format";
    case kErrInvalidPropertyValue:
      return "Invalid property value";
    case kErrReadOnlyProperty:
      return "Property is read-only";
    case kErrGetNotAtRunTime:
      return "Get not supported at run time";
    case kErrObjectRequired:
      return "Object required";
    case kErrNotSupported:
      return "Object doesn't support this property or method";
    case kErrArgumentNotOptional:
      return "Argument not optional";
    case kErrWrongArguments:
      return "Wrong number of arguments or invalid property assignment";
    case kErrInvalidPicture:
      return "Invalid picture";
    default:
      return "Application-defined or object-defined error";
  }
}

AutomationError::AutomationError(int32_t number) : AutomationError(number, StandardErrorText(number)) {}

AutomationError::AutomationError(int32_t number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

void RaiseError(int32_t number) { throw AutomationError(number); }

}  // namespace vorlex
