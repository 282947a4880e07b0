#pragma once
// Qt Designer's entry for VorlexWidget: the widget box item, the widget's
// creation (in design mode inside Designer), and its task menu.

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace vorlex::qt {

class VorlexDesignerPlugin final : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  explicit VorlexDesignerPlugin(QObject* parent = nullptr);

  QString name() const override;
  QString group() const override;
  QString toolTip() const override;
  QString whatsThis() const override;
  QString includeFile() const override;
  QIcon icon() const override;
  bool isContainer() const override { return false; }
  QWidget* createWidget(QWidget* parent) override;
  bool isInitialized() const override { return initialized_; }
  void initialize(QDesignerFormEditorInterface* core) override;
  QString domXml() const override;

 private:
  bool initialized_ = false;
  // Set when Designer itself loaded the plugin: its widgets are on forms
  // being designed. A form loaded by QUiLoader runs in user mode.
  QDesignerFormEditorInterface* core_ = nullptr;
};

}  // namespace vorlex::qt
