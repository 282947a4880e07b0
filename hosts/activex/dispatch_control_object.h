#pragma once
// A selected control as the pages reach it: by member name through the
// IDispatch the container hands over, so any control with the same members
// answers. Errors come back as the control's automation errors.

#include <string_view>
#include <vector>

#include "com_includes.h"
#include "editors/control_object.h"

namespace vorlex::activex {

class DispatchControlObject final : public editors::ControlObject {
 public:
  // Holds a reference to the control for its own life.
  explicit DispatchControlObject(IDispatch* control);
  ~DispatchControlObject() override;
  DispatchControlObject(const DispatchControlObject&) = delete;
  DispatchControlObject& operator=(const DispatchControlObject&) = delete;

  Variant Get(std::string_view name, std::vector<Variant> args = {}) override;
  void Let(std::string_view name, std::vector<Variant> args, Variant value) override;
  void Set(std::string_view name, std::vector<Variant> args, Variant value) override;
  Variant Call(std::string_view name, std::vector<Variant> args = {}) override;

  IDispatch* Dispatch() const { return control_; }

 private:
  Variant Invoke(std::string_view name, WORD flags, std::vector<Variant> args, const Variant* value);

  IDispatch* control_;
};

}  // namespace vorlex::activex
