// The Designer plugin as Designer and QUiLoader load it, and forms with the
// widget and its blocks through QUiLoader, QFormBuilder and uic.

#include <QBuffer>
#include <QFileInfo>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtDesigner/QExtensionManager>
#include <QtDesigner/QFormBuilder>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include "test_forms.h"
#include "ui_bar_form.h"
#include "vorlex/qt/VorlexWidget.h"
#include "vorlex_task_menu.h"

using vorlex::qt::VorlexWidget;
using namespace vorlex::qt::testing;

namespace {
// A form with the widget, its blocks in formText, and properties of its own.
QByteArray UiWithBar() {
  QString escaped = QString::fromStdString(BarForm()).toHtmlEscaped();
  return QStringLiteral(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
             "<ui version=\"4.0\">\n"
             " <class>Panel</class>\n"
             " <widget class=\"QWidget\" name=\"Panel\">\n"
             "  <widget class=\"vorlex::qt::VorlexWidget\" name=\"bar\">\n"
             "   <property name=\"geometry\"><rect><x>0</x><y>0</y><width>200</width><height>40</height></rect>"
             "</property>\n"
             "   <property name=\"formText\"><string notr=\"true\">%1</string></property>\n"
             "   <property name=\"borderStyle\"><enum>vorlex::qt::VorlexWidget::vxRaised</enum></property>\n"
             "   <property name=\"caption\"><string>from ui</string></property>\n"
             "  </widget>\n"
             " </widget>\n"
             "</ui>\n")
      .arg(escaped)
      .toUtf8();
}

QWidget* Load(QUiLoader& loader, const QByteArray& ui) {
  QBuffer buffer;
  buffer.setData(ui);
  buffer.open(QIODevice::ReadOnly);
  return loader.load(&buffer);
}

void CheckBar(VorlexWidget* bar) {
  QVERIFY(bar);
  QCOMPARE(bar->blocks(), 3);
  QCOMPARE(bar->blockText(1), QStringLiteral("One"));
  QCOMPARE(bar->blockKey(1), QStringLiteral("one"));
  QCOMPARE(bar->blockBrushStyle(2), VorlexWidget::vxCross);
  QCOMPARE(bar->blockColor(2), QColor(0x00, 0x80, 0xFF));
  QCOMPARE(bar->borderStyle(), VorlexWidget::vxRaised);
  QCOMPARE(bar->caption(), QStringLiteral("from ui"));
  QVERIFY(bar->userMode());
}
}  // namespace

class DesignerPluginTest : public QObject {
  Q_OBJECT

 private slots:
  void pluginLoadsAndCreatesTheWidget() {
    QPluginLoader plugin(QStringLiteral(VORLEX_DESIGNER_PLUGIN));
    QObject* instance = plugin.instance();
    QVERIFY2(instance, qPrintable(plugin.errorString()));
    auto* custom = qobject_cast<QDesignerCustomWidgetInterface*>(instance);
    QVERIFY(custom);
    QCOMPARE(custom->name(), QStringLiteral("vorlex::qt::VorlexWidget"));
    QCOMPARE(custom->includeFile(), QStringLiteral("vorlex/qt/VorlexWidget.h"));
    QVERIFY(!custom->icon().isNull());
    QVERIFY(custom->domXml().contains(QStringLiteral("formText")));
    QVERIFY(!custom->isContainer());
    custom->initialize(nullptr);
    QWidget parent;
    QWidget* created = custom->createWidget(&parent);
    auto* bar = qobject_cast<VorlexWidget*>(created);
    QVERIFY(bar);
    // Outside Designer (no form editor) the widget runs in user mode.
    QVERIFY(bar->userMode());
    QCOMPARE(bar->parentWidget(), &parent);
  }

  void uiLoaderRestoresTheBlocksAndProperties() {
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(VORLEX_DESIGNER_PLUGIN)).absolutePath());
    QVERIFY(loader.availableWidgets().contains(QStringLiteral("vorlex::qt::VorlexWidget")));
    std::unique_ptr<QWidget> panel(Load(loader, UiWithBar()));
    QVERIFY2(panel, qPrintable(loader.errorString()));
    CheckBar(panel->findChild<VorlexWidget*>(QStringLiteral("bar")));
  }

  void uiRoundTripsThroughFormBuilderAndUiLoader() {
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(VORLEX_DESIGNER_PLUGIN)).absolutePath());
    std::unique_ptr<QWidget> panel(Load(loader, UiWithBar()));
    QVERIFY(panel);
    auto* bar = panel->findChild<VorlexWidget*>(QStringLiteral("bar"));
    QVERIFY(bar);
    bar->setBlockText(QStringLiteral("edited"), 2);
    bar->addBlock();
    bar->setBlockBarRight(77, 4);

    QFormBuilder builder;
    builder.addPluginPath(QFileInfo(QStringLiteral(VORLEX_DESIGNER_PLUGIN)).absolutePath());
    QBuffer saved;
    saved.open(QIODevice::WriteOnly);
    builder.save(&saved, panel.get());
    QVERIFY(saved.data().contains("formText"));

    std::unique_ptr<QWidget> again(Load(loader, saved.data()));
    QVERIFY2(again, qPrintable(loader.errorString()));
    auto* restored = again->findChild<VorlexWidget*>(QStringLiteral("bar"));
    QVERIFY(restored);
    QCOMPARE(restored->blocks(), 4);
    QCOMPARE(restored->blockText(2), QStringLiteral("edited"));
    QCOMPARE(restored->blockBarRight(4), 77);
    QCOMPARE(restored->caption(), QStringLiteral("from ui"));
    // Every block line comes back. (The form builder also writes the widget's
    // own font and palette, which the control then takes as set.)
    const auto blockLines = [](const QString& text) {
      return text.split(QStringLiteral("\r\n")).filter(QRegularExpression(QStringLiteral("^\\s*Block")));
    };
    QVERIFY(blockLines(bar->formText()).size() > 20);
    QCOMPARE(blockLines(restored->formText()), blockLines(bar->formText()));
  }

  void taskMenuOffersThePagesAndTheAboutBox() {
    VorlexWidget widget;
    vorlex::qt::VorlexTaskMenu menu(&widget, nullptr);
    QStringList texts;
    for (const QAction* action : menu.taskActions()) texts << action->text();
    QCOMPARE(texts, (QStringList{QStringLiteral("Edit Blocks..."), QStringLiteral("Edit Caption..."),
                                 QStringLiteral("Edit Boundaries..."), QStringLiteral("About Vorlex...")}));
    QCOMPARE(menu.preferredEditAction()->text(), QStringLiteral("Edit Blocks..."));
  }

  void taskMenuFactoryServesOnlyVorlexWidgets() {
    QExtensionManager manager;
    vorlex::qt::VorlexTaskMenuFactory factory(&manager);
    manager.registerExtensions(&factory, Q_TYPEID(QDesignerTaskMenuExtension));
    VorlexWidget bar;
    QWidget other;
    QVERIFY(qt_extension<QDesignerTaskMenuExtension*>(&manager, &bar));
    QVERIFY(!qt_extension<QDesignerTaskMenuExtension*>(&manager, &other));
    manager.unregisterExtensions(&factory, Q_TYPEID(QDesignerTaskMenuExtension));
  }

  void uicCompiledFormRestoresTheBlocks() {
    QWidget panel;
    Ui::BarForm ui;
    ui.setupUi(&panel);
    QCOMPARE(ui.bar->blocks(), 2);
    QCOMPARE(ui.bar->blockText(QStringLiteral("cpu")), QStringLiteral("CPU"));
    QCOMPARE(ui.bar->blockBarRight(2), 75);
    QCOMPARE(ui.bar->borderStyle(), VorlexWidget::vxEtched);
    QCOMPARE(ui.bar->gradientStyle(), VorlexWidget::vxLeftHGradient);
    QCOMPARE(ui.bar->size(), QSize(240, 30));
  }
};

QTEST_MAIN(DesignerPluginTest)
#include "designer_plugin_test.moc"
