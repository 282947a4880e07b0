#include "qt_dialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>

#include "qt_convert.h"

namespace vorlex::qt {

bool QtDialogs::ChooseColor(editors::CommonDialog& dialog) {
  const QColor initial = (dialog.Flags & editors::kColorInitialColor) ? ToQColor(dialog.Color) : QColor(Qt::black);
  const QColor chosen = QColorDialog::getColor(initial, parent_);
  if (!chosen.isValid()) return false;
  dialog.Color = ToOleColor(chosen);
  return true;
}

bool QtDialogs::ChooseFont(editors::CommonDialog& dialog) {
  QFont initial(QString::fromStdString(dialog.FontName));
  if (dialog.FontSize > 0) initial.setPointSizeF(dialog.FontSize);
  initial.setBold(dialog.FontBold);
  initial.setItalic(dialog.FontItalic);
  initial.setUnderline(dialog.FontUnderline);
  initial.setStrikeOut(dialog.FontStrikethru);
  bool ok = false;
  const QFont chosen = QFontDialog::getFont(&ok, initial, parent_);
  if (!ok) return false;
  dialog.FontName = chosen.family().toStdString();
  dialog.FontSize = static_cast<float>(chosen.pointSizeF());
  dialog.FontBold = chosen.bold();
  dialog.FontItalic = chosen.italic();
  dialog.FontUnderline = chosen.underline();
  dialog.FontStrikethru = chosen.strikeOut();
  return true;
}

QStringList QtDialogs::NameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts[i];
    const qsizetype open = description.indexOf(QLatin1Char('('));
    if (open > 0) description = description.left(open).trimmed();
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    filters << description + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return filters;
}

bool QtDialogs::ChooseOpenFile(editors::CommonDialog& dialog) {
  QFileDialog files(parent_);
  files.setFileMode(QFileDialog::ExistingFile);
  files.setNameFilters(NameFilters(dialog.Filter));
  if (!dialog.FileName.empty()) files.selectFile(QString::fromStdString(dialog.FileName));
  if (files.exec() != QDialog::Accepted || files.selectedFiles().isEmpty()) return false;
  dialog.FileName = files.selectedFiles().front().toStdString();
  return true;
}

}  // namespace vorlex::qt
