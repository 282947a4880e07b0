// Finding and calling members of the automation table.

#include "vorlex/Automation.h"

#include <utility>

#include "control/numeric_text.h"
#include "vorlex/AutomationError.h"

namespace vorlex {

const MemberInfo* FindMember(std::string_view name, InvokeKind kind) {
  for (const MemberInfo& m : AutomationTable()) {
    if (m.kind == kind && EqualsIgnoringCase(m.name, name)) return &m;
  }
  return nullptr;
}

const MemberInfo* FindMember(int32_t dispid, InvokeKind kind) {
  for (const MemberInfo& m : AutomationTable()) {
    if (m.kind == kind && m.dispid == dispid) return &m;
  }
  return nullptr;
}

int32_t GetIDOfName(std::string_view name) {
  for (const MemberInfo& m : AutomationTable()) {
    if (EqualsIgnoringCase(m.name, name)) return m.dispid;
  }
  return DISPID_UNKNOWN;
}

namespace {
bool IsPut(InvokeKind kind) { return kind == InvokeKind::PropertyPut || kind == InvokeKind::PropertyPutRef; }

Variant Call(Vorlex& control, const MemberInfo* member, std::vector<Variant> args) {
  if (!member) RaiseError(kErrNotSupported);
  Variant value;
  if (IsPut(member->kind)) {
    if (args.empty()) RaiseError(kErrWrongArguments);
    value = std::move(args.back());
    args.pop_back();
  }
  if (args.size() > member->params.size()) RaiseError(kErrWrongArguments);
  args.resize(member->params.size(), Variant::Missing());
  for (size_t i = 0; i < args.size(); ++i) {
    if (!args[i].IsMissing()) continue;
    if (!member->params[i].optional) RaiseError(kErrArgumentNotOptional);
    args[i] = member->params[i].defaultValue;
  }
  if (IsPut(member->kind)) args.push_back(std::move(value));
  return member->call(control, args);
}
}  // namespace

Variant Invoke(Vorlex& control, int32_t dispid, InvokeKind kind, std::vector<Variant> args) {
  return Call(control, FindMember(dispid, kind), std::move(args));
}

Variant Invoke(Vorlex& control, std::string_view name, InvokeKind kind, std::vector<Variant> args) {
  return Call(control, FindMember(name, kind), std::move(args));
}

}  // namespace vorlex
