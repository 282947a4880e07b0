#include "vorlex_task_menu.h"

#include <QMetaProperty>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>

#include "vorlex/qt/Editors.h"
#include "vorlex/qt/VorlexWidget.h"

namespace vorlex::qt {

VorlexTaskMenu::VorlexTaskMenu(VorlexWidget* widget, QObject* parent)
    : QObject(parent),
      widget_(widget),
      blocks_(new QAction(QStringLiteral("Edit Blocks..."), this)),
      caption_(new QAction(QStringLiteral("Edit Caption..."), this)),
      boundaries_(new QAction(QStringLiteral("Edit Boundaries..."), this)),
      about_(new QAction(QStringLiteral("About Vorlex..."), this)) {
  connect(blocks_, &QAction::triggered, this, [this] { Edit(&EditBlocks); });
  connect(caption_, &QAction::triggered, this, [this] { Edit(&EditCaption); });
  connect(boundaries_, &QAction::triggered, this, [this] { Edit(&EditBoundaries); });
  connect(about_, &QAction::triggered, this, [this] { ShowAboutDialog(widget_); });
}

QList<QAction*> VorlexTaskMenu::taskActions() const { return {blocks_, caption_, boundaries_, about_}; }

// The page works on the widget directly; every designable property it moved
// is then set again through the form's cursor, which records it.
template <class Editor>
void VorlexTaskMenu::Edit(Editor editor) {
  if (!widget_) return;
  const QMetaObject* meta = widget_->metaObject();
  QList<QPair<QByteArray, QVariant>> before;
  for (int i = VorlexWidget::staticMetaObject.propertyOffset(); i < meta->propertyCount(); ++i) {
    const QMetaProperty property = meta->property(i);
    if (property.isDesignable()) before.append({property.name(), property.read(widget_)});
  }
  if (!editor(*widget_, widget_->window())) return;
  QDesignerFormWindowInterface* form = QDesignerFormWindowInterface::findFormWindow(widget_);
  if (!form) return;
  for (const auto& [name, old] : before) {
    const QVariant now = widget_->property(name.constData());
    if (now != old) form->cursor()->setWidgetProperty(widget_, QString::fromLatin1(name), now);
  }
}

QObject* VorlexTaskMenuFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const {
  if (iid != Q_TYPEID(QDesignerTaskMenuExtension)) return nullptr;
  if (auto* widget = qobject_cast<VorlexWidget*>(object)) return new VorlexTaskMenu(widget, parent);
  return nullptr;
}

}  // namespace vorlex::qt
