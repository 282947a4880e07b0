#include "editors/boundaries_page.h"

#include <array>
#include <string>

namespace vorlex::editors {

namespace {
// Each box is named after the property it edits, in the order Apply writes them.
constexpr std::array<const char*, 4> kProperties = {"HMinValue", "HMaxValue", "VMinValue", "VMaxValue"};
std::string Box(const char* property) { return std::string("txt") + property; }
}  // namespace

std::vector<std::string> BoundariesPage::ControlNames() const {
  std::vector<std::string> names;
  for (const char* property : kProperties) names.push_back(Box(property));
  return names;
}

void BoundariesPage::SelectionChanged() {
  ControlObject& control = FirstSelected();
  for (const char* property : kProperties)
    view_.SetText(Box(property), std::to_string(control.Get(property).ToInteger()));
}

// An overflow ends Apply at its field; the fields before it keep their values.
void BoundariesPage::ApplyChanges() {
  ControlObject& control = FirstSelected();
  for (const char* property : kProperties) control.Let(property, {}, TextValue(view_, Box(property)));
}

void BoundariesPage::ControlEvent(std::string_view control) {
  for (const char* property : kProperties) {
    if (control == Box(property)) SetChanged(true);
  }
}

}  // namespace vorlex::editors
