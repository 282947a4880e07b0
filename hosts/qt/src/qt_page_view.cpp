#include "qt_page_view.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabWidget>

#include "preview_box.h"
#include "qt_convert.h"

namespace vorlex::qt {

void QtPageView::Add(const std::string& name, QWidget* widget) {
  widget->setObjectName(QString::fromStdString(name));
  widgets_[name] = widget;
  auto fire = [this, name] { Fire(name); };
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    QObject::connect(edit, &QLineEdit::textChanged, edit, fire);
  } else if (auto* check = qobject_cast<QCheckBox*>(widget)) {
    QObject::connect(check, &QCheckBox::toggled, check, fire);
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    QObject::connect(button, &QAbstractButton::clicked, button, fire);
  } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
    // A choice, even of the item already chosen (the token list inserts again).
    QObject::connect(list, &QComboBox::activated, list, fire);
  } else if (auto* scroll = qobject_cast<QScrollBar*>(widget)) {
    QObject::connect(scroll, &QScrollBar::valueChanged, scroll, fire);
  }
}

QWidget* QtPageView::Find(std::string_view name) const {
  const auto found = widgets_.find(name);
  return found == widgets_.end() ? nullptr : found->second;
}

void QtPageView::Fire(const std::string& name) {
  if (quiet_ == 0 && route_) route_(name);
}

PreviewBox* QtPageView::Box(std::string_view control) const { return dynamic_cast<PreviewBox*>(Find(control)); }

std::string QtPageView::Text(std::string_view control) const {
  QWidget* w = Find(control);
  if (auto* edit = qobject_cast<QLineEdit*>(w)) return edit->text().toStdString();
  if (auto* label = qobject_cast<QLabel*>(w)) return label->text().toStdString();
  if (auto* list = qobject_cast<QComboBox*>(w)) return list->currentText().toStdString();
  return {};
}

void QtPageView::SetText(std::string_view control, const std::string& text) {
  Quiet quiet(*this);
  QWidget* w = Find(control);
  if (auto* edit = qobject_cast<QLineEdit*>(w)) {
    edit->setText(QString::fromStdString(text));
  } else if (auto* label = qobject_cast<QLabel*>(w)) {
    label->setText(QString::fromStdString(text));
  }
}

int QtPageView::Caret(std::string_view control) const {
  auto* edit = qobject_cast<QLineEdit*>(Find(control));
  if (!edit) return 0;
  // Characters, not UTF-16 units.
  return static_cast<int>(edit->text().left(edit->cursorPosition()).toUcs4().size());
}

bool QtPageView::Checked(std::string_view control) const {
  auto* check = qobject_cast<QCheckBox*>(Find(control));
  return check && check->isChecked();
}

void QtPageView::SetChecked(std::string_view control, bool checked) {
  Quiet quiet(*this);
  if (auto* check = qobject_cast<QCheckBox*>(Find(control))) check->setChecked(checked);
}

void QtPageView::SetListItems(std::string_view control, const std::vector<std::string>& items) {
  Quiet quiet(*this);
  auto* list = qobject_cast<QComboBox*>(Find(control));
  if (!list) return;
  list->clear();
  for (const std::string& item : items) list->addItem(QString::fromStdString(item));
  list->setCurrentIndex(-1);
}

int QtPageView::ListIndex(std::string_view control) const {
  auto* list = qobject_cast<QComboBox*>(Find(control));
  return list ? list->currentIndex() : -1;
}

void QtPageView::SetListIndex(std::string_view control, int index) {
  Quiet quiet(*this);
  auto* list = qobject_cast<QComboBox*>(Find(control));
  if (list) list->setCurrentIndex(index >= 0 && index < list->count() ? index : -1);
}

int QtPageView::ScrollValue(std::string_view control) const {
  auto* scroll = qobject_cast<QScrollBar*>(Find(control));
  return scroll ? scroll->value() : 0;
}

void QtPageView::SetScrollValue(std::string_view control, int value) {
  Quiet quiet(*this);
  if (auto* scroll = qobject_cast<QScrollBar*>(Find(control))) scroll->setValue(value);
}

void QtPageView::SetScrollRange(std::string_view control, int minimum, int maximum) {
  Quiet quiet(*this);
  if (auto* scroll = qobject_cast<QScrollBar*>(Find(control))) scroll->setRange(minimum, maximum);
}

void QtPageView::SetEnabled(std::string_view control, bool enabled) {
  if (QWidget* w = Find(control)) w->setEnabled(enabled);
}

void QtPageView::SetBackColor(std::string_view control, OLE_COLOR color) {
  QWidget* w = Find(control);
  if (!w) return;
  if (PreviewBox* box = Box(control)) {
    box->SetBackColor(color);
    return;
  }
  QPalette palette = w->palette();
  palette.setColor(QPalette::Base, ToQColor(color));
  palette.setColor(QPalette::Window, ToQColor(color));
  w->setPalette(palette);
}

void QtPageView::SetForeColor(std::string_view control, OLE_COLOR color) {
  QWidget* w = Find(control);
  if (!w) return;
  QPalette palette = w->palette();
  palette.setColor(QPalette::Text, ToQColor(color));
  palette.setColor(QPalette::WindowText, ToQColor(color));
  w->setPalette(palette);
}

void QtPageView::SetPicture(std::string_view control, PicturePtr picture) {
  if (PreviewBox* box = Box(control)) box->SetPicture(picture);
}

editors::PreviewTarget QtPageView::BeginPreview(std::string_view control) {
  PreviewBox* box = Box(control);
  return box ? box->Begin() : editors::PreviewTarget{};
}

void QtPageView::EndPreview(std::string_view control) {
  if (PreviewBox* box = Box(control)) box->End();
}

void QtPageView::ClearPreview(std::string_view control) {
  if (PreviewBox* box = Box(control)) box->Clear();
}

void QtPageView::PageChanged(bool changed) {
  if (changed_) changed_(changed);
}

}  // namespace vorlex::qt
