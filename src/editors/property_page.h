#pragma once
// What the three pages share: the host's property-page protocol (selected
// controls, selection change, apply, the changed flag), the view and the
// common dialog, and the routing of the user's actions to the handlers.

#include <string>
#include <string_view>
#include <vector>

#include "editors/common_dialog.h"
#include "editors/control_object.h"
#include "editors/page_view.h"

namespace vorlex::editors {

class PropertyPage {
 public:
  PropertyPage(PageView& view, DialogService& dialogs) : view_(view), dialog_(dialogs) {}
  virtual ~PropertyPage() = default;
  PropertyPage(const PropertyPage&) = delete;
  PropertyPage& operator=(const PropertyPage&) = delete;

  // The page's title in the host's property sheet.
  virtual std::string_view Caption() const = 0;
  // Names of the page's controls, as its view knows them.
  virtual std::vector<std::string> ControlNames() const = 0;

  // The host's list of selected controls (not owned); a page works on item 0.
  void SetSelectedControls(std::vector<ControlObject*> controls) { selected_ = std::move(controls); }
  const std::vector<ControlObject*>& SelectedControls() const { return selected_; }

  virtual void SelectionChanged() = 0;
  virtual void ApplyChanges() = 0;
  // The user changed, clicked or scrolled the named control. Errors the
  // handler does not absorb reach the caller as automation errors.
  virtual void ControlEvent(std::string_view control) = 0;

  bool Changed() const { return changed_; }
  void SetChanged(bool changed);

  CommonDialog& Dialog() { return dialog_; }

 protected:
  // Item 0 of the selected controls; error 9 when there is none.
  ControlObject& FirstSelected() const;

  PageView& view_;
  CommonDialog dialog_;

 private:
  std::vector<ControlObject*> selected_;
  bool changed_ = false;
};

// The items of a list that shows an enumeration: its members in value order,
// each as the value, " - " and the member's name ("3 - vxInset").
std::vector<std::string> EnumerationItems(std::string_view enumName);

// A text box's number as the pages read it: the leading numeric value, 0 when
// there is none.
double TextValue(const PageView& view, std::string_view control);

}  // namespace vorlex::editors
