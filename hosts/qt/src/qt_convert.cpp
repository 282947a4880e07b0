#include "qt_convert.h"

#include <cmath>

#include "platform/syscolor.h"
#include "vorlex/Vorlex.h"

namespace vorlex::qt {

QColor ToQColor(OLE_COLOR color) {
  OLE_COLOR rgb = color;
  if (!TranslateColor(color, rgb)) rgb = 0;
  return QColor(static_cast<int>(rgb & 0xFF), static_cast<int>((rgb >> 8) & 0xFF),
                static_cast<int>((rgb >> 16) & 0xFF));
}

OLE_COLOR ToOleColor(const QColor& color) {
  const QColor c = color.toRgb();
  return static_cast<OLE_COLOR>(c.red()) | (static_cast<OLE_COLOR>(c.green()) << 8) |
         (static_cast<OLE_COLOR>(c.blue()) << 16);
}

QFont ToQFont(const vorlex::Font& font) {
  QFont q(QString::fromStdString(font.Name()));
  if (font.Size() > 0) q.setPointSizeF(font.Size());
  q.setBold(font.Bold());
  q.setItalic(font.Italic());
  q.setUnderline(font.Underline());
  q.setStrikeOut(font.Strikethrough());
  return q;
}

FontPtr ToVorlexFont(const QFont& font) {
  auto f =
      std::make_shared<vorlex::Font>(font.family().toStdString(), font.pointSizeF() > 0 ? font.pointSizeF() : 8.25);
  f->SetBold(font.bold());
  f->SetItalic(font.italic());
  f->SetUnderline(font.underline());
  f->SetStrikethrough(font.strikeOut());
  return f;
}

bool SameFont(const vorlex::Font& font, const QFont& q) {
  return QString::fromStdString(font.Name()) == q.family() && std::abs(font.Size() - q.pointSizeF()) < 0.01 &&
         font.Bold() == q.bold() && font.Italic() == q.italic() && font.Underline() == q.underline() &&
         font.Strikethrough() == q.strikeOut();
}

Variant BlockArgument(const QVariant& block) {
  if (!block.isValid()) return DefaultBlock();
  if (block.typeId() == QMetaType::QString || block.typeId() == QMetaType::QByteArray) {
    const QString text = block.toString();
    bool number = false;
    const int value = text.toInt(&number);
    if (number) return Variant(static_cast<int32_t>(value));
    return Variant(text.toStdString());
  }
  bool ok = false;
  const int value = block.toInt(&ok);
  return ok ? Variant(static_cast<int32_t>(value)) : Variant(block.toString().toStdString());
}

}  // namespace vorlex::qt
