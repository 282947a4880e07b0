// Carrying out a statement through the control's automation table.

#include "dispatch.h"

#include <utility>
#include <vector>

#include "vorlex/AutomationError.h"

namespace vorlex::cli {

InvokeKind CallKind(const Statement& statement) {
  if (!statement.value) {
    return FindMember(statement.name, InvokeKind::PropertyGet) ? InvokeKind::PropertyGet : InvokeKind::Method;
  }
  const bool hasPut = FindMember(statement.name, InvokeKind::PropertyPut) != nullptr;
  const bool hasPutRef = FindMember(statement.name, InvokeKind::PropertyPutRef) != nullptr;
  if (hasPutRef && (statement.value->IsObject() || !hasPut)) return InvokeKind::PropertyPutRef;
  return InvokeKind::PropertyPut;
}

namespace {

Variant ExecuteObjectMember(Vorlex& control, const Statement& statement) {
  const Variant object = Invoke(control, statement.name, InvokeKind::PropertyGet, statement.args);
  if (!statement.value) return GetObjectMember(object, statement.member);
  PutObjectMember(object, statement.member, *statement.value);
  return Variant();
}

}  // namespace

Variant Execute(Vorlex& control, const Statement& statement) {
  if (statement.valueError != 0) RaiseError(statement.valueError);
  if (!statement.member.empty()) return ExecuteObjectMember(control, statement);
  std::vector<Variant> args = statement.args;
  if (statement.value) args.push_back(*statement.value);
  return Invoke(control, statement.name, CallKind(statement), std::move(args));
}

}  // namespace vorlex::cli
