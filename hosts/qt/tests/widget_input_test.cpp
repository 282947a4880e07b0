// Mouse input on VorlexWidget: BlockClicked from the hit test in the
// widget's logical pixels, Click and DblClick, nothing while disabled.

#include <QSignalSpy>
#include <QtTest>

#include "test_forms.h"
#include "vorlex/qt/VorlexWidget.h"

using vorlex::qt::VorlexWidget;
using namespace vorlex::qt::testing;

namespace {
void LoadBar(VorlexWidget& widget) {
  widget.setFont(HeadlessAmbientFont());
  widget.setClockService(vorlex::FixedClock(FixedTime()));
  widget.setFormText(QString::fromStdString(BarForm()));
  widget.show();
}

// What HeadlessSite's control reports for a release at (x, y).
int HeadlessHit(float x, float y) {
  vorlex::HeadlessSite site(200, 40);
  site.SetClock(vorlex::FixedClock(FixedTime()));
  vorlex::Vorlex control(site);
  std::vector<vorlex::FormControl> forms = vorlex::ReadFormText(BarForm(), "bar.frm");
  vorlex::ApplyForm(control, forms.front(), "bar.frm");
  control.UserControl_Paint();
  site.ClearRecords();
  control.UserControl_MouseUp(1, 0, x, y);
  const std::string event = site.RaisedEvents().front();
  return std::stoi(event.substr(event.find(' ') + 1));
}
}  // namespace

class WidgetInputTest : public QObject {
  Q_OBJECT

 private slots:
  void clickEmitsBlockClickedWithTheHitBlock_data() {
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<int>("block");
    QTest::newRow("inside block 1") << QPoint(50, 10) << 1;
    QTest::newRow("near block 1's right end") << QPoint(78, 30) << 1;
    QTest::newRow("inside block 2") << QPoint(150, 10) << 2;
    QTest::newRow("over the unclickable block 3") << QPoint(100, 20) << -1;
    QTest::newRow("between the blocks at the top") << QPoint(100, 2) << -1;
    QTest::newRow("left of every block") << QPoint(5, 20) << -1;
  }
  void clickEmitsBlockClickedWithTheHitBlock() {
    QFETCH(QPoint, at);
    QFETCH(int, block);
    VorlexWidget widget;
    LoadBar(widget);
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QSignalSpy clicked(&widget, &VorlexWidget::blockClicked);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.front().front().toInt(), block);
    QCOMPARE(block, HeadlessHit(static_cast<float>(at.x()), static_cast<float>(at.y())));
  }

  void anyButtonReleaseHitTests() {
    VorlexWidget widget;
    LoadBar(widget);
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QSignalSpy clicked(&widget, &VorlexWidget::blockClicked);
    QTest::mouseClick(&widget, Qt::RightButton, {}, QPoint(150, 10));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.front().front().toInt(), 2);
  }

  void clickAndDoubleClickAreForwarded() {
    VorlexWidget widget;
    LoadBar(widget);
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QSignalSpy blocks(&widget, &VorlexWidget::blockClicked);
    QSignalSpy clicks(&widget, &VorlexWidget::clicked);
    QSignalSpy doubles(&widget, &VorlexWidget::doubleClicked);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(50, 10));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(doubles.count(), 0);
    // A double click as a window system delivers it: press and release, then
    // the double-click press and its release, which is no second Click.
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(50, 10));
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, QPoint(50, 10));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, QPoint(50, 10));
    QCOMPARE(doubles.count(), 1);
    QCOMPARE(clicks.count(), 2);
    QCOMPARE(blocks.count(), 3);
  }

  void disabledWidgetGetsNoMouseInput() {
    VorlexWidget widget;
    LoadBar(widget);
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    widget.control().put_Enabled(vorlex::VARIANT_FALSE);
    QVERIFY(!widget.isEnabled());
    QSignalSpy blocks(&widget, &VorlexWidget::blockClicked);
    QSignalSpy clicks(&widget, &VorlexWidget::clicked);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(50, 10));
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, QPoint(50, 10));
    QCOMPARE(blocks.count(), 0);
    QCOMPARE(clicks.count(), 0);
  }

  void blockMembersTakeANumberOrAKey() {
    VorlexWidget widget;
    LoadBar(widget);
    QCOMPARE(widget.blocks(), 3);
    QCOMPARE(widget.blockText(QStringLiteral("one")), QStringLiteral("One"));
    widget.setBlockColor(QColor(1, 2, 3), QStringLiteral("one"));
    QCOMPARE(widget.blockColor(1), QColor(1, 2, 3));
    widget.setBlockBarRight(45, 1);
    QCOMPARE(widget.blockBarRight(QStringLiteral("1")), 45);
    widget.addBlock();
    QCOMPARE(widget.blocks(), 4);
    widget.deleteBlock(4);
    QCOMPARE(widget.blocks(), 3);
    QVERIFY(QMetaObject::invokeMethod(&widget, "setBlockText", Q_ARG(QString, QStringLiteral("via meta")),
                                      Q_ARG(QVariant, QVariant(2))));
    QCOMPARE(widget.blockText(2), QStringLiteral("via meta"));
  }
};

QTEST_MAIN(WidgetInputTest)
#include "widget_input_test.moc"
