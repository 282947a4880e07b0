#include "editors/property_page.h"

#include <algorithm>

#include "control/numeric_text.h"
#include "vorlex/Automation.h"
#include "vorlex/AutomationError.h"

namespace vorlex::editors {

void PropertyPage::SetChanged(bool changed) {
  changed_ = changed;
  view_.PageChanged(changed);
}

ControlObject& PropertyPage::FirstSelected() const {
  if (selected_.empty() || !selected_.front()) RaiseError(kErrSubscript);
  return *selected_.front();
}

std::vector<std::string> EnumerationItems(std::string_view enumName) {
  const EnumerationInfo* info = FindEnumeration(enumName);
  if (!info) return {};
  std::vector<EnumConstant> constants = info->constants;
  std::stable_sort(constants.begin(), constants.end(),
                   [](const EnumConstant& a, const EnumConstant& b) { return a.value < b.value; });
  std::vector<std::string> items;
  items.reserve(constants.size());
  for (const EnumConstant& c : constants) items.push_back(std::to_string(c.value) + " - " + std::string(c.name));
  return items;
}

double TextValue(const PageView& view, std::string_view control) { return LeadingNumericValue(view.Text(control)); }

}  // namespace vorlex::editors
