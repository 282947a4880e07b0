#pragma once
// Forms and renders the Qt tests share: a bar of known geometry, and the
// reference picture of a form as HeadlessSite shows it.

#include <QFile>
#include <QFont>
#include <QImage>
#include <string>

#include "vorlex/ClockService.h"
#include "vorlex/FormText.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::qt::testing {

// bar.frm, compiled in as :/forms/bar.frm. 200 x 40 pixels at 15 twips a
// pixel, no border: a unit is 2 pixels across. Block 1 spans x 20..80,
// block 2 x 120..180, both clickable; block 3 has a live clock text.
// Gradients, hatches, rivets and text make every part of the drawing count.
inline std::string BarForm() {
  QFile file(QStringLiteral(":/forms/bar.frm"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().toStdString();
}

// HeadlessSite's ambient font, for a widget whose ambient font is its own:
// blocks without a font of their own in the form take the ambient one.
inline QFont HeadlessAmbientFont() {
  QFont font(QStringLiteral("MS Sans Serif"));
  font.setPointSizeF(8.25);
  return font;
}

inline LocalDateTime FixedTime() {
  LocalDateTime when;
  when.year = 2024;
  when.month = 5;
  when.day = 17;
  when.hour = 9;
  when.minute = 41;
  return when;
}

inline QImage ToImage(const WindowImage& window) {
  QImage image(window.width, window.height, QImage::Format_RGB32);
  for (int y = 0; y < window.height; ++y)
    for (int x = 0; x < window.width; ++x) image.setPixel(x, y, 0xFF000000u | window.At(x, y));
  return image;
}

// The form in a HeadlessSite of the given client size, painted once.
inline QImage HeadlessRender(const std::string& text, int width, int height) {
  HeadlessSite site(width, height);
  site.SetClock(FixedClock(FixedTime()));
  Vorlex control(site);
  std::vector<FormControl> forms = ReadFormText(text, "bar.frm");
  ApplyForm(control, forms.front(), "bar.frm");
  site.SetClientSize(width, height);
  control.UserControl_Paint();
  return ToImage(site.Snapshot());
}

}  // namespace vorlex::qt::testing
