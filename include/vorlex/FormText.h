#pragma once
// Forms on disk: the property bags of Vorlex controls as Visual Basic form
// text. Reading accepts whole form files (other controls are skipped) and
// resolves pictures, from files relative to the form or from records of a
// .frx file beside it; writing gives text that reads back to the same state,
// with pictures saved as files beside the form.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "vorlex/PropertyBag.h"

namespace vorlex {

class Vorlex;

// A form that cannot be read or written: the file, the line (0 when the
// problem is not at a line) and what is wrong.
class FormError : public std::runtime_error {
 public:
  FormError(std::string file, int line, std::string problem);
  const std::string& File() const { return file_; }
  int Line() const { return line_; }
  const std::string& Problem() const { return problem_; }

 private:
  std::string file_;
  int line_;
  std::string problem_;
};

// One "Begin VorlexLib.Vorlex Name" block, its values read into a bag.
struct FormControl {
  std::string name;
  int line = 0;  // of its Begin
  MemoryPropertyBag bag;
};

// Every Vorlex control of a form file, in file order (none when the form has
// none). Each bag has been loaded once into a scratch control, so a value
// that the control cannot take is reported here, with its line, and ApplyForm
// does not fail part-way. Raises FormError.
std::vector<FormControl> LoadForm(const std::string& path);
// The same from text in memory; path names the form in errors and anchors
// relative picture and resource paths.
std::vector<FormControl> ReadFormText(std::string_view text, const std::string& path);

// Loads a control from a form's bag (UserControl_ReadProperties). Raises
// FormError naming the key it stopped at.
void ApplyForm(Vorlex& control, FormControl& form, const std::string& path = std::string());

// The form text of a control: "VERSION 5.00" and its Begin VorlexLib.Vorlex
// block. Pictures are written as files beside formPath, named after its stem,
// the control and the key; texts that hold line breaks go into a resource
// file beside it (formPath with .frx). The form itself is not written.
std::string SaveFormText(const Vorlex& control, const std::string& name, const std::string& formPath);
// SaveFormText, then the text into formPath. Raises FormError.
void SaveForm(const Vorlex& control, const std::string& name, const std::string& formPath);

}  // namespace vorlex
