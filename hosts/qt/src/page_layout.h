#pragma once
// Small helpers the page layouts share: labelled widgets in grids, with the
// label as the widget's buddy so that its mnemonic focuses the widget.

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "qt_page_view.h"

namespace vorlex::qt::layout {

// Adds "label  widget" on a row of a grid, from a column; returns the widget.
template <class W>
W* Row(QtPageView& view, QGridLayout* grid, int row, int column, const char* label, const std::string& name,
       W* widget) {
  auto* text = new QLabel(QString::fromUtf8(label));
  text->setBuddy(widget);
  grid->addWidget(text, row, column);
  grid->addWidget(widget, row, column + 1);
  view.Add(name, widget);
  return widget;
}

// A button that opens a dialog for the box beside it.
inline QPushButton* Ellipsis(QtPageView& view, const std::string& name) {
  auto* button = new QPushButton(QStringLiteral("..."));
  button->setFixedWidth(32);
  view.Add(name, button);
  return button;
}

inline QLineEdit* NumberBox() {
  auto* edit = new QLineEdit;
  edit->setMaximumWidth(80);
  return edit;
}

}  // namespace vorlex::qt::layout
