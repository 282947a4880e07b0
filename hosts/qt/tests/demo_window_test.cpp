// The demo's window: a form loads into it, and a click on the bar prints
// "BlockClicked N" with the hit block, -1 off every block.

#include "demo_window.h"

#include <QtTest>
#include <cstdio>
#include <string>

#include "test_forms.h"

using vorlex::qt::demo::DemoWindow;

namespace {
// Everything written to a stream so far.
std::string Written(std::FILE* stream) {
  std::fflush(stream);
  std::rewind(stream);
  std::string text;
  char buffer[256];
  while (std::fgets(buffer, sizeof buffer, stream)) text += buffer;
  return text;
}
}  // namespace

class DemoWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void clicksPrintTheHitBlock() {
    std::FILE* out = std::tmpfile();
    QVERIFY(out);
    {
      DemoWindow window({{'C', "/"}}, out);
      QString error;
      QVERIFY2(window.Load(QStringLiteral(":/forms/bar.frm"), &error), qPrintable(error));
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      // Block 1 spans x 20..80 of the bar, block 2 x 120..180; 100 is between them.
      QTest::mouseClick(&window.Bar(), Qt::LeftButton, {}, QPoint(50, 20));
      QTest::mouseClick(&window.Bar(), Qt::LeftButton, {}, QPoint(150, 20));
      QTest::mouseClick(&window.Bar(), Qt::LeftButton, {}, QPoint(100, 20));
    }
    QCOMPARE(QString::fromStdString(Written(out)), QStringLiteral("BlockClicked 1\nBlockClicked 2\nBlockClicked -1\n"));
    std::fclose(out);
  }

  void aFormThatCannotBeReadIsAnError() {
    DemoWindow window({}, stdout);
    QString error;
    QVERIFY(!window.Load(QStringLiteral("/nonexistent/form.frm"), &error));
    QVERIFY(error.contains(QStringLiteral("form.frm")));
  }
};

QTEST_MAIN(DemoWindowTest)
#include "demo_window_test.moc"
