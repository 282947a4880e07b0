#pragma once
// The pages' common dialog: colour, font and open-file selection with the
// state a page sets before showing it and reads after. The system dialogs
// themselves are the host's (DialogService); a cancelled dialog raises error
// 32755 when CancelError is set, as the common dialog control does.

#include <cstdint>
#include <string>

#include "vorlex/Color.h"

namespace vorlex::editors {

inline constexpr int32_t kErrCancel = 32755;  // "Cancel was selected."

// Colour dialog: show Color as the initial colour.
inline constexpr int32_t kColorInitialColor = 0x1;
// Font dialog: screen and printer fonts (3) with effects (256).
inline constexpr int32_t kFontScreenPrinterEffects = 259;

class CommonDialog;

// The host's system dialogs. Each shows its dialog from the state of the
// CommonDialog, writes the choice back into it, and returns false when the
// user cancelled (leaving the state as it was).
class DialogService {
 public:
  virtual ~DialogService() = default;
  virtual bool ChooseColor(CommonDialog& dialog) = 0;
  virtual bool ChooseFont(CommonDialog& dialog) = 0;
  virtual bool ChooseOpenFile(CommonDialog& dialog) = 0;
};

class CommonDialog {
 public:
  explicit CommonDialog(DialogService& service) : service_(service) {}

  int32_t Flags = 0;
  bool CancelError = false;
  OLE_COLOR Color = 0;
  std::string FontName;
  float FontSize = 0;
  bool FontBold = false;
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikethru = false;
  std::string Filter;  // "Description|patterns|Description|patterns..."
  std::string FileName;

  void ShowColor() { Show(&DialogService::ChooseColor); }
  void ShowFont() { Show(&DialogService::ChooseFont); }
  void ShowOpen() { Show(&DialogService::ChooseOpenFile); }

 private:
  void Show(bool (DialogService::*choose)(CommonDialog&));
  DialogService& service_;
};

}  // namespace vorlex::editors
