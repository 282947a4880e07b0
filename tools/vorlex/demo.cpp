// The built-in demo, read from its form text.

#include "demo.h"

#include <vector>

#include "vorlex/FormText.h"

namespace vorlex::cli {

void LoadDemo(Vorlex& control) {
  std::vector<FormControl> forms = ReadFormText(kDemoFormText, "demo.frm");
  ApplyForm(control, forms.front(), "demo.frm");
}

}  // namespace vorlex::cli
