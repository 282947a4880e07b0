// VorlexWidget on screen: the same pixels as HeadlessSite, and a resize that
// repaints at the new size.

#include <QSignalSpy>
#include <QtTest>

#include "test_forms.h"
#include "vorlex/qt/VorlexWidget.h"

using vorlex::qt::VorlexWidget;
using namespace vorlex::qt::testing;

namespace {
QImage Grab(VorlexWidget& widget) { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

int Differences(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return -1;
  int count = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) count += a.pixel(x, y) != b.pixel(x, y);
  return count;
}

void LoadBar(VorlexWidget& widget) {
  widget.setFont(HeadlessAmbientFont());
  widget.setClockService(vorlex::FixedClock(FixedTime()));
  widget.setFormText(QString::fromStdString(BarForm()));
}
}  // namespace

class WidgetRenderTest : public QObject {
  Q_OBJECT

 private slots:
  void formTextSizesTheWidgetFromItsTwips() {
    VorlexWidget widget;
    LoadBar(widget);
    QCOMPARE(widget.size(), QSize(200, 40));
  }

  void grabbedPixelsEqualHeadlessRenderOfTheSameForm() {
    VorlexWidget widget;
    LoadBar(widget);
    const QImage expected = HeadlessRender(BarForm(), 200, 40);
    const QImage grabbed = Grab(widget);
    QCOMPARE(grabbed.size(), expected.size());
    QCOMPARE(Differences(grabbed, expected), 0);
    // Not a blank picture that would match anything: the blocks' colours show.
    QVERIFY(grabbed.pixel(21, 20) != grabbed.pixel(100, 2));
  }

  void shownWidgetPaintsTheSamePixelsAsHeadless() {
    VorlexWidget widget;
    LoadBar(widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCOMPARE(Differences(Grab(widget), HeadlessRender(BarForm(), 200, 40)), 0);
  }

  void resizeRepaintsAtTheNewSize() {
    VorlexWidget widget;
    LoadBar(widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    widget.resize(300, 60);
    QTRY_COMPARE(widget.size(), QSize(300, 60));
    const QImage grabbed = Grab(widget);
    QCOMPARE(grabbed.size(), QSize(300, 60));
    QCOMPARE(Differences(grabbed, HeadlessRender(BarForm(), 300, 60)), 0);
  }

  void propertyChangeRepaintsAndNotifiesByName() {
    VorlexWidget widget;
    LoadBar(widget);
    QSignalSpy changes(&widget, &VorlexWidget::propertyChanged);
    const QImage before = Grab(widget);
    widget.setBackColor(QColor(0, 0, 255));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.front().front().toString(), QStringLiteral("BackColor"));
    QCOMPARE(widget.backColor(), QColor(0, 0, 255));
    const QImage after = Grab(widget);
    QCOMPARE(after.pixel(100, 2), qRgb(0, 0, 255));
    QVERIFY(Differences(before, after) > 0);
  }

  void disabledControlDrawsItsColoursInDisabledColor() {
    VorlexWidget widget;
    LoadBar(widget);
    widget.setDisabledColor(QColor(10, 20, 30));
    widget.setEnabled(false);
    const QImage grabbed = Grab(widget);
    // The middle of block 2 is its hatch or its colour, both now DisabledColor.
    QCOMPARE(grabbed.pixel(150, 21), qRgb(10, 20, 30));
  }
};

QTEST_MAIN(WidgetRenderTest)
#include "widget_render_test.moc"
