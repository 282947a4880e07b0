// The editors' entry points for applications and the Designer plugin.

#include "vorlex/qt/Editors.h"

#include "about_dialog.h"
#include "page_dialog.h"
#include "vorlex/qt/VorlexWidget.h"

namespace vorlex::qt {

namespace {
// The page wrote to the control when its form text moved.
bool Edit(PageKind kind, VorlexWidget& widget, QWidget* parent) {
  const QString before = widget.formText();
  PageDialog dialog(kind, widget, parent ? parent : &widget);
  dialog.exec();
  return widget.formText() != before;
}
}  // namespace

bool EditBlocks(VorlexWidget& widget, QWidget* parent) { return Edit(PageKind::Block, widget, parent); }
bool EditCaption(VorlexWidget& widget, QWidget* parent) { return Edit(PageKind::Caption, widget, parent); }
bool EditBoundaries(VorlexWidget& widget, QWidget* parent) { return Edit(PageKind::Boundaries, widget, parent); }

void ShowAboutDialog(QWidget* parent) {
  AboutDialog dialog(parent);
  dialog.exec();
}

}  // namespace vorlex::qt
