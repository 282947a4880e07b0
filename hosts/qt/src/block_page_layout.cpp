// The Block page's widgets: navigation above the tabs, then Position, Text,
// Appearance and Picture, three of them with tabs of their own.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "page_dialog.h"
#include "page_layout.h"
#include "preview_box.h"

namespace vorlex::qt {

namespace {
using layout::Ellipsis;
using layout::NumberBox;
using layout::Row;

QWidget* Tab(QTabWidget* tabs, const char* caption, QLayout* content) {
  auto* page = new QWidget;
  auto* outer = new QVBoxLayout(page);
  outer->addLayout(content);
  outer->addStretch(1);
  tabs->addTab(page, QString::fromUtf8(caption));
  return page;
}

QGridLayout* Grid() {
  auto* grid = new QGridLayout;
  grid->setColumnStretch(4, 1);
  return grid;
}

QLayout* PositionTab(QtPageView& view) {
  auto* grid = Grid();
  Row(view, grid, 0, 0, "&Left:", "txtBlockBarLeft", NumberBox());
  Row(view, grid, 0, 2, "&Right:", "txtBlockBarRight", NumberBox());
  Row(view, grid, 1, 0, "&Top:", "txtBlockBarTop", NumberBox());
  Row(view, grid, 1, 2, "&Bottom:", "txtBlockBarBottom", NumberBox());
  auto* autoSize = new QCheckBox(QStringLiteral("&AutoSize"));
  auto* clickable = new QCheckBox(QStringLiteral("&Clickable"));
  view.Add("chkBlockAutoSize", autoSize);
  view.Add("chkBlockClickable", clickable);
  grid->addWidget(autoSize, 2, 0, 1, 2);
  grid->addWidget(clickable, 2, 2, 1, 2);
  auto* percentage = new QGroupBox(QStringLiteral("&Percentage"));
  auto* inner = new QGridLayout(percentage);
  Row(view, inner, 0, 0, "&Horizontal:", "txtBlockHPercentage", NumberBox());
  Row(view, inner, 0, 2, "&Vertical:", "txtBlockVPercentage", NumberBox());
  inner->setColumnStretch(4, 1);
  grid->addWidget(percentage, 3, 0, 1, 5);
  return grid;
}

QLayout* TextTab(QtPageView& view) {
  auto* tabs = new QTabWidget;
  view.Add("SSTab2", tabs);

  auto* value = new QGridLayout;
  auto* text = new QLineEdit;
  view.Add("txtBlockText", text);
  value->addWidget(text, 0, 0, 1, 2);
  Row(view, value, 1, 0, "&Format available :", "cbxTextFormat", new QComboBox);
  value->setColumnStretch(1, 1);
  Tab(tabs, "&Value", value);

  auto* font = new QGridLayout;
  auto* fontName = new QLineEdit;
  fontName->setReadOnly(true);
  Row(view, font, 0, 0, "&Select a Font:", "txtTextFont", fontName);
  font->addWidget(Ellipsis(view, "cmdFontSelection"), 0, 2);
  Row(view, font, 1, 0, "&Font 3D:", "cbxFont3D", new QComboBox);
  auto* colored = new QLineEdit(QStringLiteral("This text is colored"));
  colored->setReadOnly(true);
  Row(view, font, 2, 0, "&Color:", "txtTextColor", colored);
  font->addWidget(Ellipsis(view, "cmdTextColorSelection"), 2, 2);
  font->setColumnStretch(1, 1);
  Tab(tabs, "&Font", font);

  auto* position = Grid();
  Row(view, position, 0, 0, "&Alignment:", "cbxTextAlignment", new QComboBox);
  Row(view, position, 0, 2, "&Angle:", "txtBlockTextAngle", NumberBox());
  Row(view, position, 1, 0, "&Auto Angle:", "cbxAutoAngle", new QComboBox);
  Row(view, position, 1, 2, "&Offset:", "txtBlockTextOffset", NumberBox());
  Tab(tabs, "&Position", position);

  auto* box = new QVBoxLayout;
  box->addWidget(tabs);
  return box;
}

QLayout* GradientTab(QtPageView& view) {
  auto* grid = new QGridLayout;
  Row(view, grid, 0, 0, "&Style:", "cbxGradientStyle", new QComboBox);
  Row(view, grid, 1, 0, "&Granularity:", "cbxGradientGranularity", new QComboBox);
  auto* colors = new QGroupBox(QStringLiteral("&Color:"));
  auto* rows = new QGridLayout(colors);
  const char* const start[] = {"Start Red = 0", "Start Green = 0", "Start Blue = 0"};
  const char* const end[] = {"End Red = 0", "End Green = 0", "End Blue = 0"};
  for (int i = 0; i < 3; ++i) {
    for (int half = 0; half < 2; ++half) {
      const std::string index = "(" + std::to_string(i) + ")";
      const std::string suffix = half == 0 ? "" : "End";
      auto* label = new QLabel(QString::fromUtf8(half == 0 ? start[i] : end[i]));
      label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("Start Green = 255")) + 4);
      auto* bar = new QScrollBar(Qt::Horizontal);
      bar->setRange(0, 255);
      bar->setMinimumWidth(120);
      auto* preview = new PreviewBox(40, 16);
      view.Add("lblColor" + suffix + index, label);
      view.Add("hslColor" + suffix + index, bar);
      view.Add("pctColor" + suffix + index, preview);
      const int row = half * 3 + i;
      rows->addWidget(label, row, 0);
      rows->addWidget(bar, row, 1);
      rows->addWidget(preview, row, 2);
    }
  }
  auto* result = new PreviewBox(64, 88);
  view.Add("pctResult", result);
  rows->addWidget(result, 0, 3, 6, 1, Qt::AlignCenter);
  rows->setColumnStretch(1, 1);
  grid->addWidget(colors, 2, 0, 1, 3);
  grid->setColumnStretch(2, 1);
  return grid;
}

QLayout* AppearanceTab(QtPageView& view) {
  auto* tabs = new QTabWidget;
  view.Add("SSTab3", tabs);

  auto* general = new QGridLayout;
  Row(view, general, 0, 0, "&Shape:", "cbxShapeStyle", new QComboBox);
  Row(view, general, 1, 0, "&Border:", "cbxBorderStyle", new QComboBox);
  Row(view, general, 1, 2, "width:", "txtBlockBorderWidth", NumberBox());
  auto* color = new QLineEdit;
  color->setReadOnly(true);
  Row(view, general, 2, 0, "&Background Color:", "txtColor", color);
  general->addWidget(Ellipsis(view, "cmdColorSelection"), 2, 2);
  auto* onTop = new QCheckBox(QStringLiteral("On Top"));
  auto* visible = new QCheckBox(QStringLiteral("Visible"));
  view.Add("chkBlockOnTop", onTop);
  view.Add("chkBlockVisible", visible);
  general->addWidget(onTop, 3, 0);
  general->addWidget(visible, 3, 1);
  general->setColumnStretch(4, 1);
  Tab(tabs, "&General", general);

  auto* brush = new QGridLayout;
  Row(view, brush, 0, 0, "&Style:", "cbxBrushStyle", new QComboBox);
  auto* brushColor = new QLineEdit;
  brushColor->setReadOnly(true);
  Row(view, brush, 1, 0, "Brush &Color:", "txtBrushColor", brushColor);
  brush->addWidget(Ellipsis(view, "cmdBrushColor"), 1, 2);
  brush->setColumnStretch(3, 1);
  Tab(tabs, "&Brush", brush);

  Tab(tabs, "&Gradient", GradientTab(view));

  auto* rivets = new QGridLayout;
  Row(view, rivets, 0, 0, "&Style:", "cbxRivetsStyle", new QComboBox);
  rivets->setColumnStretch(2, 1);
  Tab(tabs, "&Rivets", rivets);

  auto* box = new QVBoxLayout;
  box->addWidget(tabs);
  return box;
}

QLayout* PictureTab(QtPageView& view) {
  auto* tabs = new QTabWidget;
  view.Add("SSTab4", tabs);

  auto* look = Grid();
  Row(view, look, 0, 0, "&Alignment:", "cbxPictureAlignment", new QComboBox);
  Row(view, look, 0, 2, "offset:", "txtBlockPictureOffset", NumberBox());
  Row(view, look, 1, 0, "&Tile:", "cbxPictureTile", new QComboBox);
  Tab(tabs, "&Appearance", look);

  auto* preview = new QGridLayout;
  auto* picture = new PreviewBox(160, 120);
  view.Add("Picture1", picture);
  preview->addWidget(picture, 0, 0, 3, 1);
  auto* browse = new QPushButton(QStringLiteral("&Browse"));
  auto* remove = new QPushButton(QStringLiteral("&Remove"));
  view.Add("cmdBrowse", browse);
  view.Add("cmdRemove", remove);
  preview->addWidget(browse, 0, 1);
  preview->addWidget(remove, 1, 1);
  preview->setColumnStretch(2, 1);
  Tab(tabs, "Pre&view", preview);

  auto* box = new QVBoxLayout;
  box->addWidget(tabs);
  return box;
}
}  // namespace

void BuildBlockPage(QtPageView& view, QWidget* container) {
  auto* page = new QVBoxLayout(container);
  page->setContentsMargins(0, 0, 0, 0);

  auto* top = new QHBoxLayout;
  auto* indexLabel = new QLabel(QStringLiteral("&Index:"));
  auto* index = new QLineEdit;
  index->setMaximumWidth(48);
  indexLabel->setBuddy(index);
  view.Add("txtIndex", index);
  auto* scroll = new QScrollBar(Qt::Horizontal);
  scroll->setMinimumWidth(100);
  view.Add("HScroll1", scroll);
  auto* keyLabel = new QLabel(QStringLiteral("Key:"));
  auto* key = new QLineEdit;
  keyLabel->setBuddy(key);
  view.Add("txtBlockKey", key);
  auto* add = new QPushButton(QStringLiteral("A&dd"));
  auto* remove = new QPushButton(QStringLiteral("&Remove"));
  view.Add("cmdAddBlock", add);
  view.Add("cmdRemoveBlock", remove);
  top->addWidget(indexLabel);
  top->addWidget(index);
  top->addWidget(scroll, 1);
  top->addWidget(keyLabel);
  top->addWidget(key, 1);
  top->addWidget(add);
  top->addWidget(remove);
  page->addLayout(top);

  auto* tabs = new QTabWidget;
  view.Add("SSTab1", tabs);
  Tab(tabs, "&Position", PositionTab(view));
  Tab(tabs, "&Text", TextTab(view));
  Tab(tabs, "&Appearance", AppearanceTab(view));
  Tab(tabs, "&Picture", PictureTab(view));
  page->addWidget(tabs);
}

}  // namespace vorlex::qt
