// The form-text reader on arbitrary text: refusing it with a FormError is a
// correct outcome; a bag it accepts must load into a control without error.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "vorlex/AutomationError.h"
#include "vorlex/FormText.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace {

// Saved sizes are not applied, so that huge ones allocate nothing.
class FixedSizeSite final : public vorlex::HeadlessSite {
 public:
  void SetOuterWidthTwips(int32_t) override {}
  void SetOuterHeightTwips(int32_t) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::vector<vorlex::FormControl> forms;
  try {
    forms = vorlex::ReadFormText(text, "fuzz.frm");
  } catch (const vorlex::FormError&) {
    return 0;
  }
  for (vorlex::FormControl& form : forms) {
    FixedSizeSite site;
    vorlex::Vorlex control(site);
    try {
      vorlex::ApplyForm(control, form, "fuzz.frm");
    } catch (const vorlex::FormError&) {
      __builtin_trap();  // the reader tried this bag already
    }
  }
  return 0;
}
