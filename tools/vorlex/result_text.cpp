// How eval prints the value a statement yields.

#include "result_text.h"

#include <cstdint>
#include <memory>

#include "vorlex/AutomationError.h"
#include "vorlex/Font.h"
#include "vorlex/Picture.h"

namespace vorlex::cli {

namespace {

// An object's default property, as text.
std::string ObjectText(const std::shared_ptr<Object>& object) {
  if (!object) return "Nothing";
  if (const auto* font = dynamic_cast<const Font*>(object.get())) return font->Name();
  if (const auto* picture = dynamic_cast<const Picture*>(object.get())) {
    // Handle is a Long to automation: the 32 bits read as signed.
    return Variant(static_cast<int32_t>(picture->Handle())).ToString();
  }
  RaiseError(kErrNotSupported);
}

}  // namespace

std::optional<std::string> ResultText(const Variant& result) {
  switch (result.Type()) {
    case VarType::Empty:
    case VarType::Missing:
      return std::nullopt;
    case VarType::Object:
      return ObjectText(result.ToObject());
    default:
      return result.ToString();
  }
}

}  // namespace vorlex::cli
