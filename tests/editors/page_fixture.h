#pragma once
// A newly placed control at design time in a headless container, reached by
// name as a page reaches it, with a fake view and scripted dialogs.

#include <gtest/gtest.h>

#include "editors/control_object.h"
#include "error_matchers.h"
#include "fake_view.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::testing {

class DesignTimeControl {
 public:
  DesignTimeControl() {
    site.SetUserMode(false);
    control.InitProperties();
    site.ClearRecords();
  }
  HeadlessSite site;
  Vorlex control{site};
  editors::AutomationControlObject object{control};
};

inline Variant Block(int index) { return Variant(static_cast<int16_t>(index)); }

}  // namespace vorlex::testing
