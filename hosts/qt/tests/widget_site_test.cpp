// What VorlexWidget's container gives the control: Qt timers with the
// system's SetTimer and KillTimer rules, the pass-through properties, the
// ambient font and user mode, and forms from files and resources.

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "qt_timers.h"
#include "test_forms.h"
#include "vorlex/AutomationError.h"
#include "vorlex/qt/VorlexWidget.h"

using vorlex::qt::QtTimers;
using vorlex::qt::VorlexWidget;
using namespace vorlex::qt::testing;

namespace {
int g_ticks = 0;
uintptr_t g_lastId = 0;
void CountTick(uintptr_t, uint32_t msg, uintptr_t id, uint32_t) {
  QCOMPARE(msg, 0x0113u);
  ++g_ticks;
  g_lastId = id;
}
}  // namespace

class WidgetSiteTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    g_ticks = 0;
    g_lastId = 0;
  }

  void setTimerTicksOnTheEventLoopWithItsId() {
    QtTimers timers;
    const uintptr_t id = timers.SetTimer(0, 10, &CountTick);
    QVERIFY(id != 0);
    QTRY_VERIFY(g_ticks >= 2);
    QCOMPARE(g_lastId, id);
  }

  void setTimerWithAnExistingIdReArmsInPlace() {
    QtTimers timers;
    const uintptr_t id = timers.SetTimer(0, 1000, &CountTick);
    QCOMPARE(timers.SetTimer(id, 15, &CountTick), id);
    QCOMPARE(timers.ActiveTimers(), size_t{1});
    QCOMPARE(timers.IntervalOf(id), 15);
    QTRY_VERIFY(g_ticks >= 1);
  }

  void timerIdsAreUniqueAcrossServices() {
    QtTimers first;
    QtTimers second;
    QVERIFY(first.SetTimer(0, 1000, &CountTick) != second.SetTimer(0, 1000, &CountTick));
  }

  void killTimerStopsTicksAndFailsForAnUnknownId() {
    QtTimers timers;
    const uintptr_t id = timers.SetTimer(0, 10, &CountTick);
    QVERIFY(timers.KillTimer(id));
    QVERIFY(!timers.KillTimer(id));
    QTest::qWait(60);
    QCOMPARE(g_ticks, 0);
  }

  void noTickAfterTheServiceIsDestroyed() {
    {
      QtTimers timers;
      timers.SetTimer(0, 10, &CountTick);
    }
    QTest::qWait(60);
    QCOMPARE(g_ticks, 0);
  }

  void controlTimersTickAndRaiseTheirEvents() {
    VorlexWidget widget;
    QSignalSpy time(&widget, &VorlexWidget::timerTime);
    QSignalSpy disk(&widget, &VorlexWidget::timerDisk);
    widget.setTimerTimeInterval(20);
    widget.setTimerTimeEnabled(true);
    widget.setTimerDiskInterval(30);
    widget.setTimerDiskEnabled(true);
    QTRY_VERIFY(time.count() >= 2);
    QTRY_VERIFY(disk.count() >= 2);
    widget.setTimerTimeEnabled(false);
    widget.setTimerDiskEnabled(false);
    const auto timeTicks = time.count();
    const auto diskTicks = disk.count();
    QTest::qWait(80);
    QCOMPARE(time.count(), timeTicks);
    QCOMPARE(disk.count(), diskTicks);
  }

  void timersStopWithTheWidget() {
    int ticks = 0;
    auto widget = std::make_unique<VorlexWidget>();
    QObject::connect(widget.get(), &VorlexWidget::timerTime, [&ticks] { ++ticks; });
    widget->setTimerTimeInterval(10);
    widget->setTimerTimeEnabled(true);
    QTRY_VERIFY(ticks >= 1);
    widget.reset();
    const int atDestruction = ticks;
    QTest::qWait(60);
    QCOMPARE(ticks, atDestruction);
  }

  void passThroughPropertiesReachTheWidget() {
    VorlexWidget widget;
    widget.setForeColor(QColor(1, 2, 3));
    QCOMPARE(widget.palette().color(QPalette::WindowText), QColor(1, 2, 3));
    widget.setBackColor(QColor(4, 5, 6));
    QCOMPARE(widget.palette().color(QPalette::Window), QColor(4, 5, 6));
    widget.control().put_Enabled(vorlex::VARIANT_FALSE);
    QVERIFY(!widget.isEnabled());
    widget.setEnabled(true);
    QCOMPARE(widget.control().get_Enabled(), vorlex::VARIANT_TRUE);
    auto font = std::make_shared<vorlex::Font>("DejaVu Serif", 14);
    font->SetItalic(true);
    widget.control().putref_Font(font);
    QCOMPARE(widget.font().family(), QStringLiteral("DejaVu Serif"));
    QCOMPARE(widget.font().pointSizeF(), 14.0);
    QVERIFY(widget.font().italic());
  }

  void widgetFontBecomesTheControlsFont() {
    VorlexWidget widget;
    QSignalSpy changes(&widget, &VorlexWidget::propertyChanged);
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setPointSizeF(11);
    font.setBold(true);
    widget.setFont(font);
    QCOMPARE(QString::fromStdString(widget.control().get_Font()->Name()), QStringLiteral("DejaVu Sans Mono"));
    QCOMPARE(widget.control().get_Font()->Size(), 11.0);
    QVERIFY(widget.control().get_Font()->Bold());
    QVERIFY(changes.contains(QVariantList{QStringLiteral("Font")}));
  }

  void ambientFontIsTheWidgetsFont() {
    QWidget parent;
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPointSizeF(13);
    parent.setFont(font);
    VorlexWidget widget(&parent);
    QCOMPARE(QString::fromStdString(widget.control().get_Font()->Name()), QStringLiteral("DejaVu Serif"));
    QCOMPARE(widget.control().get_Font()->Size(), 13.0);
  }

  void userModeDecidesTheDesignTimeOnlyProperties() {
    VorlexWidget widget;
    QVERIFY(widget.userMode());
    try {
      widget.control().get_SpecialClearAllBlock();
      QFAIL("a design-time-only property read at run time");
    } catch (const vorlex::AutomationError& e) {
      QCOMPARE(e.Number(), 393);
    }
    widget.setUserMode(false);
    QCOMPARE(widget.control().get_SpecialClearAllBlock(), 0);
  }

  void formsLoadFromFilesAndResourcesAndSaveBack() {
    VorlexWidget widget;
    QString error;
    QVERIFY2(widget.loadForm(QStringLiteral(":/forms/bar.frm"), &error), qPrintable(error));
    QCOMPARE(widget.blocks(), 3);
    QCOMPARE(widget.caption(), QStringLiteral("bar"));
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("saved.frm"));
    widget.setCaption(QStringLiteral("saved"));
    QVERIFY2(widget.saveForm(path, &error), qPrintable(error));
    VorlexWidget again;
    QVERIFY2(again.loadForm(path, &error), qPrintable(error));
    QCOMPARE(again.caption(), QStringLiteral("saved"));
    QCOMPARE(again.blockText(2), QStringLiteral("Two"));
    QVERIFY(!again.loadForm(folder.filePath(QStringLiteral("missing.frm")), &error));
    QVERIFY(error.contains(QStringLiteral("missing.frm")));
  }

  void formTextLeavesOutLinesNamingFilesThatAreGone() {
    VorlexWidget widget;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("picture file not found")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("gone\\.frx")));
    widget.setFormText(
        QStringLiteral("VERSION 5.00\r\nBegin VorlexLib.Vorlex V\r\n   Blocks          =   2\r\n"
                       "   Block.Picture(1)=   \"gone.bmp\"\r\n   Block.Text(1)   =   \"kept\"\r\n"
                       "   Block.Text(2)   =   \"gone.frx\":0000\r\n   Caption         =   \"here\"\r\n"
                       "End\r\n"));
    QCOMPARE(widget.blocks(), 2);
    QCOMPARE(widget.blockText(1), QStringLiteral("kept"));
    QVERIFY(!widget.blockHasPicture(1));
    QCOMPARE(widget.caption(), QStringLiteral("here"));
  }

  void formTextCarriesPicturesAndTextsToAnotherWidget() {
    QString text;
    {
      VorlexWidget widget;
      widget.addBlock();
      widget.addBlock();
      QTemporaryDir folder;
      QImage image(8, 5, QImage::Format_RGB32);
      image.fill(Qt::red);
      const QString bmp = folder.filePath(QStringLiteral("red.bmp"));
      QVERIFY(image.save(bmp));
      widget.setBlockPicture(bmp, 1);
      widget.setBlockText(QStringLiteral("two\r\nlines"), 2);
      text = widget.formText();
    }  // the first widget's folder and the picture file are gone
    QVERIFY(text.contains(QStringLiteral("' file ")));
    VorlexWidget other;
    other.setFormText(text);
    QCOMPARE(other.blocks(), 2);
    QVERIFY(other.blockHasPicture(1));
    const vorlex::PicturePtr picture = other.control().get_BlockPicture(vorlex::Variant(static_cast<int16_t>(1)));
    QVERIFY(picture);
    QCOMPARE(picture->PixelWidth(), 8);
    QCOMPARE(picture->PixelHeight(), 5);
    QCOMPARE(other.blockText(2), QStringLiteral("two\r\nlines"));
  }

  void embeddedFileNamesCannotLeaveTheFolder() {
    VorlexWidget widget;
    const QString escape = QString::fromLatin1(QByteArray("../escaped.bmp").toBase64());
    widget.setFormText(QStringLiteral("VERSION 5.00\r\nBegin VorlexLib.Vorlex V\r\n   Caption = \"safe\"\r\nEnd\r\n"
                                      "' file ") +
                       escape + QStringLiteral(" AAAA\r\n"));
    QCOMPARE(widget.caption(), QStringLiteral("safe"));
    QVERIFY(!QFile::exists(QDir::temp().filePath(QStringLiteral("escaped.bmp"))));
  }

  void enumPropertiesCarryTheLibrarysNames() {
    VorlexWidget widget;
    QCOMPARE(widget.borderStyle(), VorlexWidget::vxInset);
    QVERIFY(widget.setProperty("borderStyle", QStringLiteral("vxBump")));
    QCOMPARE(widget.control().get_BorderStyle(), vorlex::vxBump);
    const QMetaEnum gradients = QMetaEnum::fromType<VorlexWidget::vxGradientStyleEnum>();
    QCOMPARE(gradients.name(), "vxGradientStyleEnum");
    QCOMPARE(gradients.keyToValue("vxInnerCircleGradient"), 9);
  }
};

QTEST_MAIN(WidgetSiteTest)
#include "widget_site_test.moc"
