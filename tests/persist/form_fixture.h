#pragma once
// Forms written into a folder of their own, read back, and applied to
// controls in headless containers.

#include <gtest/gtest.h>

#include <string>

#include "error_matchers.h"
#include "temp_folder.h"
#include "vorlex/FormText.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::persist_test {

using picture_test::Bytes;

inline Bytes TextBytes(const std::string& text) { return Bytes(text.begin(), text.end()); }

// Lines joined with CRLF, as Visual Basic writes them.
inline std::string Crlf(std::initializer_list<const char*> lines) {
  std::string text;
  for (const char* line : lines) text += std::string(line) + "\r\n";
  return text;
}

class FormTest : public ::testing::Test {
 protected:
  std::string WriteForm(const std::string& name, const std::string& text) {
    return folder.Write(name, TextBytes(text));
  }

  // The only Vorlex control of a form, applied to `control`.
  void LoadOnly(const std::string& path) {
    std::vector<FormControl> forms = LoadForm(path);
    ASSERT_EQ(forms.size(), 1u);
    ApplyForm(control, forms[0], path);
  }

  // The FormError a call raises, or a failure when it raises none.
  template <class Call>
  FormError ErrorOf(Call call) {
    try {
      call();
    } catch (const FormError& e) {
      return e;
    }
    ADD_FAILURE() << "no FormError";
    return FormError("", 0, "");
  }

  picture_test::TempFolder folder;
  HeadlessSite site;
  Vorlex control{site};
};

}  // namespace vorlex::persist_test
