#pragma once
// The Boundaries page: HMinValue, HMaxValue, VMinValue and VMaxValue of the
// first selected control, read on every selection change, written on Apply.

#include "editors/property_page.h"

namespace vorlex::editors {

class BoundariesPage final : public PropertyPage {
 public:
  using PropertyPage::PropertyPage;

  std::string_view Caption() const override { return "&Boundaries"; }
  std::vector<std::string> ControlNames() const override;

  void SelectionChanged() override;
  void ApplyChanges() override;
  void ControlEvent(std::string_view control) override;
};

}  // namespace vorlex::editors
