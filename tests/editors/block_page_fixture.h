#pragma once
// The Block page open on a design-time control with one block.

#include "editors/block_page.h"
#include "page_fixture.h"

namespace vorlex::testing {

class BlockPageEdit : public ::testing::Test, protected DesignTimeControl {
 protected:
  BlockPageEdit() {
    object.Call("AddBlock");
    page.SetSelectedControls({&object});
    page.SelectionChanged();
  }
  const BlockDefinition& Record() const { return page.WorkingCopy().at(1); }
  void Type(const char* box, const std::string& text) {
    view.Type(box, text);
    page.ControlEvent(box);
  }
  void Check(const char* box, bool checked) {
    view.SetChecked(box, checked);
    page.ControlEvent(box);
  }
  void Choose(const char* list, int index) {
    view.SetListIndex(list, index);
    page.ControlEvent(list);
  }
  void Scroll(const std::string& bar, int value) {
    view.SetScrollValue(bar, value);
    page.ControlEvent(bar);
  }
  Variant BlockValue(const char* property) { return object.Get(property, {Block(1)}); }

  FakeView view;
  FakeDialogs dialogs;
  editors::BlockPage page{view, dialogs};
};

}  // namespace vorlex::testing
