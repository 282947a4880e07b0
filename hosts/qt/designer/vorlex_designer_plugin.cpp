#include "vorlex_designer_plugin.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

#include "about_dialog.h"
#include "vorlex/qt/VorlexWidget.h"
#include "vorlex_task_menu.h"

namespace vorlex::qt {

VorlexDesignerPlugin::VorlexDesignerPlugin(QObject* parent) : QObject(parent) {}

QString VorlexDesignerPlugin::name() const { return QStringLiteral("vorlex::qt::VorlexWidget"); }
QString VorlexDesignerPlugin::group() const { return QStringLiteral("Vorlex"); }
QString VorlexDesignerPlugin::toolTip() const { return QStringLiteral("Vorlex bar"); }
QString VorlexDesignerPlugin::whatsThis() const {
  return QStringLiteral("A multi-purpose bar of blocks: gauges, clocks, panels.");
}
QString VorlexDesignerPlugin::includeFile() const { return QStringLiteral("vorlex/qt/VorlexWidget.h"); }
QIcon VorlexDesignerPlugin::icon() const { return VorlexIcon(); }

QWidget* VorlexDesignerPlugin::createWidget(QWidget* parent) {
  auto* widget = new VorlexWidget(parent);
  widget->setUserMode(core_ == nullptr);
  return widget;
}

void VorlexDesignerPlugin::initialize(QDesignerFormEditorInterface* core) {
  if (initialized_) return;
  initialized_ = true;
  core_ = core;
  if (!core) return;
  if (QExtensionManager* manager = core->extensionManager())
    manager->registerExtensions(new VorlexTaskMenuFactory(manager), Q_TYPEID(QDesignerTaskMenuExtension));
}

QString VorlexDesignerPlugin::domXml() const {
  return QStringLiteral(
      "<ui language=\"c++\">\n"
      " <widget class=\"vorlex::qt::VorlexWidget\" name=\"vorlex\">\n"
      "  <property name=\"geometry\"><rect><x>0</x><y>0</y><width>200</width><height>32</height></rect></property>\n"
      " </widget>\n"
      " <customwidgets>\n"
      "  <customwidget>\n"
      "   <class>vorlex::qt::VorlexWidget</class>\n"
      "   <propertyspecifications>\n"
      "    <stringpropertyspecification name=\"formText\" type=\"multiline\" notr=\"true\"/>\n"
      "   </propertyspecifications>\n"
      "  </customwidget>\n"
      " </customwidgets>\n"
      "</ui>\n");
}

}  // namespace vorlex::qt
