#pragma once
// The container's IPropertyBag as the control's property bag: what a Basic
// form saves into its form text. Fonts and pictures are written as the
// system's own font and picture objects, which the container can persist.

#include <string>

#include "com_includes.h"
#include "vorlex/PropertyBag.h"

namespace vorlex::activex {

class ContainerBag final : public PropertyBag {
 public:
  ContainerBag(IPropertyBag& bag, IErrorLog* log) : bag_(bag), log_(log) {}
  // A value equal to its default is not written, as the form's bag does.
  void WriteProperty(const std::string& name, const Variant& value, const Variant& defaultValue) override;
  // A name the bag does not hold gives the default.
  Variant ReadProperty(const std::string& name, const Variant& defaultValue) override;

 private:
  IPropertyBag& bag_;
  IErrorLog* log_;
};

}  // namespace vorlex::activex
