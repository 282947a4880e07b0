#pragma once
// The system's common dialogs for colour, font and open-file selection, shown
// from a page's CommonDialog state and written back into it on OK.

#include "com_includes.h"
#include "editors/common_dialog.h"

namespace vorlex::activex {

class SystemDialogs final : public editors::DialogService {
 public:
  bool ChooseColor(editors::CommonDialog& dialog) override;
  bool ChooseFont(editors::CommonDialog& dialog) override;
  bool ChooseOpenFile(editors::CommonDialog& dialog) override;
};

// A '|'-separated filter ("Bitmaps (*.bmp)|*.bmp") in the dialog's form:
// each part ended by a NUL, the whole by a second one.
std::wstring DialogFilter(const std::string& filter);

}  // namespace vorlex::activex
