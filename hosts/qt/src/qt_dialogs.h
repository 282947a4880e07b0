#pragma once
// The pages' system dialogs as Qt's: colour, font and open-file selection.

#include <QPointer>
#include <QWidget>

#include "editors/common_dialog.h"

namespace vorlex::qt {

class QtDialogs final : public editors::DialogService {
 public:
  explicit QtDialogs(QWidget* parent) : parent_(parent) {}
  bool ChooseColor(editors::CommonDialog& dialog) override;
  bool ChooseFont(editors::CommonDialog& dialog) override;
  bool ChooseOpenFile(editors::CommonDialog& dialog) override;

  // "Description|patterns|..." as Qt's name filters ("Description (*.a *.b)").
  static QStringList NameFilters(const std::string& filter);

 private:
  QPointer<QWidget> parent_;
};

}  // namespace vorlex::qt
