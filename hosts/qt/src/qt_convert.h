#pragma once
// Values between Qt and the control: colours, fonts, block arguments, text.

#include <QColor>
#include <QFont>
#include <QString>
#include <QVariant>
#include <string>

#include "vorlex/Color.h"
#include "vorlex/Font.h"
#include "vorlex/Variant.h"

namespace vorlex::qt {

// A system colour reference is translated to the colour it stands for.
QColor ToQColor(OLE_COLOR color);
OLE_COLOR ToOleColor(const QColor& color);

QFont ToQFont(const vorlex::Font& font);
FontPtr ToVorlexFont(const QFont& font);
// The same font: the members the control's font object keeps.
bool SameFont(const vorlex::Font& font, const QFont& qfont);

// A block argument: a number, or a key (a string that is no number).
Variant BlockArgument(const QVariant& block);

inline QString ToQString(const std::string& text) { return QString::fromStdString(text); }
inline std::string ToStd(const QString& text) { return text.toStdString(); }

}  // namespace vorlex::qt
