#pragma once
// The Caption page: the caption's text, font, 3-D look, alignment, angle and
// auto angle of the first selected control, read on every selection change
// and written back on Apply. The font being edited lives in the common dialog.

#include "editors/property_page.h"

namespace vorlex::editors {

class CaptionPage final : public PropertyPage {
 public:
  CaptionPage(PageView& view, DialogService& dialogs);

  std::string_view Caption() const override { return "&Caption"; }
  std::vector<std::string> ControlNames() const override;

  void SelectionChanged() override;
  void ApplyChanges() override;
  void ControlEvent(std::string_view control) override;

 private:
  void cmdFontSelection_Click();
};

}  // namespace vorlex::editors
