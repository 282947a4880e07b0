#include "editors/control_object.h"

#include <utility>

#include "vorlex/Automation.h"

namespace vorlex::editors {

Variant AutomationControlObject::Get(std::string_view name, std::vector<Variant> args) {
  return Invoke(control_, name, InvokeKind::PropertyGet, std::move(args));
}

void AutomationControlObject::Let(std::string_view name, std::vector<Variant> args, Variant value) {
  args.push_back(std::move(value));
  Invoke(control_, name, InvokeKind::PropertyPut, std::move(args));
}

void AutomationControlObject::Set(std::string_view name, std::vector<Variant> args, Variant value) {
  args.push_back(std::move(value));
  Invoke(control_, name, InvokeKind::PropertyPutRef, std::move(args));
}

Variant AutomationControlObject::Call(std::string_view name, std::vector<Variant> args) {
  return Invoke(control_, name, InvokeKind::Method, std::move(args));
}

}  // namespace vorlex::editors
