// VorlexWidget on a screen of two device pixels per logical pixel: the
// control's surface stays in logical pixels, each shown as a 2 x 2 square,
// and clicks are hit-tested in logical pixels.

#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

#include "test_forms.h"
#include "vorlex/qt/VorlexWidget.h"

using vorlex::qt::VorlexWidget;
using namespace vorlex::qt::testing;

class HighDensityTest : public QObject {
  Q_OBJECT

 private slots:
  void screenHasTwoDevicePixelsPerPixel() {
    VorlexWidget widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCOMPARE(widget.devicePixelRatioF(), 2.0);
  }

  void eachLogicalPixelIsATwoByTwoSquareOfTheHeadlessPixel() {
    VorlexWidget widget;
    widget.setFont(HeadlessAmbientFont());
    widget.setClockService(vorlex::FixedClock(FixedTime()));
    widget.setFormText(QString::fromStdString(BarForm()));
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCOMPARE(widget.size(), QSize(200, 40));
    const QPixmap grabbed = widget.grab();
    QCOMPARE(grabbed.devicePixelRatio(), 2.0);
    const QImage device = grabbed.toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(device.size(), QSize(400, 80));
    const QImage expected = HeadlessRender(BarForm(), 200, 40);
    int differences = 0;
    for (int y = 0; y < 40; ++y)
      for (int x = 0; x < 200; ++x)
        for (int dy = 0; dy < 2; ++dy)
          for (int dx = 0; dx < 2; ++dx) differences += device.pixel(2 * x + dx, 2 * y + dy) != expected.pixel(x, y);
    QCOMPARE(differences, 0);
  }

  void clicksAreHitTestedInLogicalPixels() {
    VorlexWidget widget;
    widget.setFormText(QString::fromStdString(BarForm()));
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QSignalSpy clicked(&widget, &VorlexWidget::blockClicked);
    // Logical (150, 10) is block 2; device (150, 10) would be logical (75, 5), block 1.
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(150, 10));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.front().front().toInt(), 2);
  }
};

int main(int argc, char** argv) {
  qputenv("QT_SCALE_FACTOR", "2");
  QApplication app(argc, argv);
  HighDensityTest test;
  return QTest::qExec(&test, argc, argv);
}
#include "high_density_test.moc"
