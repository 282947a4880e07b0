// The Caption and Boundaries pages' widgets.

#include <QComboBox>
#include <QGroupBox>
#include <QVBoxLayout>

#include "page_dialog.h"
#include "page_layout.h"

namespace vorlex::qt {

using layout::Ellipsis;
using layout::NumberBox;
using layout::Row;

void BuildCaptionPage(QtPageView& view, QWidget* container) {
  auto* grid = new QGridLayout(container);
  grid->setContentsMargins(0, 0, 0, 0);
  auto* caption = new QLineEdit;
  caption->setMinimumWidth(220);
  Row(view, grid, 0, 0, "&Caption:", "txtCaption", caption);
  auto* font = new QLineEdit;
  font->setReadOnly(true);
  Row(view, grid, 1, 0, "&Font:", "txtCaptionFont", font);
  grid->addWidget(Ellipsis(view, "cmdFontSelection"), 1, 2);
  Row(view, grid, 2, 0, "&Font 3D:", "cbxCaptionFont3D", new QComboBox);
  Row(view, grid, 3, 0, "&Alignment:", "cbxCaptionAlignment", new QComboBox);
  Row(view, grid, 4, 0, "&Angle:", "txtCaptionAngle", NumberBox());
  Row(view, grid, 5, 0, "&Auto Angle:", "cbxCaptionAutoAngle", new QComboBox);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(6, 1);
}

void BuildBoundariesPage(QtPageView& view, QWidget* container) {
  auto* page = new QVBoxLayout(container);
  page->setContentsMargins(0, 0, 0, 0);
  const struct {
    const char* title;
    const char* minimum;
    const char* maximum;
  } frames[] = {{"&Horizontal value", "txtHMinValue", "txtHMaxValue"},
                {"&Vertical value", "txtVMinValue", "txtVMaxValue"}};
  for (const auto& frame : frames) {
    auto* box = new QGroupBox(QString::fromUtf8(frame.title));
    auto* grid = new QGridLayout(box);
    Row(view, grid, 0, 0, "&Minimum:", frame.minimum, NumberBox());
    Row(view, grid, 1, 0, "&Maximum:", frame.maximum, NumberBox());
    grid->setColumnStretch(2, 1);
    page->addWidget(box);
  }
  page->addStretch(1);
}

}  // namespace vorlex::qt
