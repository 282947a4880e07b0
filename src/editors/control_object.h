#pragma once
// How a page reaches a selected control: by member name, through the control's
// automation interface, as the container hands the control over. Errors are
// the control's automation errors.

#include <string_view>
#include <vector>

#include "vorlex/Variant.h"

namespace vorlex {
class Vorlex;
}

namespace vorlex::editors {

class ControlObject {
 public:
  virtual ~ControlObject() = default;
  // A property's value; args are the property's own arguments (a block index).
  virtual Variant Get(std::string_view name, std::vector<Variant> args = {}) = 0;
  // Basic's Let and Set of a property.
  virtual void Let(std::string_view name, std::vector<Variant> args, Variant value) = 0;
  virtual void Set(std::string_view name, std::vector<Variant> args, Variant value) = 0;
  virtual Variant Call(std::string_view name, std::vector<Variant> args = {}) = 0;
};

// The library's own control, through its automation table.
class AutomationControlObject final : public ControlObject {
 public:
  explicit AutomationControlObject(Vorlex& control) : control_(control) {}
  Variant Get(std::string_view name, std::vector<Variant> args = {}) override;
  void Let(std::string_view name, std::vector<Variant> args, Variant value) override;
  void Set(std::string_view name, std::vector<Variant> args, Variant value) override;
  Variant Call(std::string_view name, std::vector<Variant> args = {}) override;

 private:
  Vorlex& control_;
};

}  // namespace vorlex::editors
