#pragma once
// Designer's task menu on a VorlexWidget: the Block, Caption and Boundaries
// pages and the About box. What a page writes goes back to the form through
// Designer's cursor, so the form is marked modified and can be undone.

#include <QAction>
#include <QPointer>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

namespace vorlex::qt {

class VorlexWidget;

class VorlexTaskMenu final : public QObject, public QDesignerTaskMenuExtension {
  Q_OBJECT
  Q_INTERFACES(QDesignerTaskMenuExtension)

 public:
  VorlexTaskMenu(VorlexWidget* widget, QObject* parent);
  QAction* preferredEditAction() const override { return blocks_; }
  QList<QAction*> taskActions() const override;

 private:
  template <class Editor>
  void Edit(Editor editor);

  QPointer<VorlexWidget> widget_;
  QAction* blocks_;
  QAction* caption_;
  QAction* boundaries_;
  QAction* about_;
};

class VorlexTaskMenuFactory final : public QExtensionFactory {
  Q_OBJECT

 public:
  explicit VorlexTaskMenuFactory(QExtensionManager* parent = nullptr) : QExtensionFactory(parent) {}

 protected:
  QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;
};

}  // namespace vorlex::qt
