// The Qt pages drive the shared editor logic: a widget set as a user sets
// it, Apply, and the control's property read back. The system dialogs are
// scripted answers here.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest>
#include <functional>

#include "about_dialog.h"
#include "page_dialog.h"
#include "preview_box.h"
#include "test_forms.h"
#include "vorlex/qt/VorlexWidget.h"

using vorlex::qt::AboutDialog;
using vorlex::qt::PageDialog;
using vorlex::qt::PageKind;
using vorlex::qt::PreviewBox;
using vorlex::qt::VorlexWidget;
using namespace vorlex::qt::testing;

namespace {
class ScriptedDialogs final : public vorlex::editors::DialogService {
 public:
  std::function<bool(vorlex::editors::CommonDialog&)> answer = [](vorlex::editors::CommonDialog&) { return false; };
  QStringList shown;
  bool ChooseColor(vorlex::editors::CommonDialog& d) override { return Show("color", d); }
  bool ChooseFont(vorlex::editors::CommonDialog& d) override { return Show("font", d); }
  bool ChooseOpenFile(vorlex::editors::CommonDialog& d) override { return Show("open", d); }

 private:
  bool Show(const char* kind, vorlex::editors::CommonDialog& d) {
    shown << QString::fromLatin1(kind);
    return answer(d);
  }
};

class RecordingSystem final : public vorlex::editors::AboutSystem {
 public:
  QStringList messages;
  QStringList started;
  long RegOpenKeyExA(uint32_t, const std::string&, uint32_t, uintptr_t*) override { return 2; }
  long RegQueryValueExA(uintptr_t, const std::string&, uint32_t*, uint8_t*, uint32_t*) override { return 6; }
  long RegCloseKey(uintptr_t) override { return 6; }
  bool FileExists(const std::string&) override { return false; }
  void StartProgram(const std::string& path) override { started << QString::fromStdString(path); }
  void MessageBox(const std::string& text) override { messages << QString::fromStdString(text); }
};

template <class W>
W* Named(QWidget& dialog, const char* name) {
  W* found = dialog.findChild<W*>(QString::fromLatin1(name));
  if (!found) qWarning("no widget %s", name);
  return found;
}

// Replaces a text box's text as a user does: select all, type.
void Type(QLineEdit* edit, const QString& text) {
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
}

// Picks a list's item from the keyboard.
void Choose(QComboBox* list, int index) {
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Home);
  for (int i = 0; i < index; ++i) QTest::keyClick(list, Qt::Key_Down);
}

void LoadBar(VorlexWidget& widget) { widget.setFormText(QString::fromStdString(BarForm())); }

// Errors the page reports fail the test instead of waiting in a message box.
void Unexpected(PageDialog& dialog) {
  dialog.SetErrorReporter([](const QString& error) { QFAIL(qPrintable(QStringLiteral("reported: ") + error)); });
}

bool Uniform(const QImage& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != image.pixel(0, 0)) return false;
  return true;
}
}  // namespace

class PagesTest : public QObject {
  Q_OBJECT

 private slots:
  void blockPageHasTheLogicsControlsAndTabs() {
    VorlexWidget widget;
    LoadBar(widget);
    ScriptedDialogs dialogs;
    PageDialog dialog(PageKind::Block, widget, nullptr, &dialogs);
    Unexpected(dialog);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Block"));
    for (const std::string& name : dialog.Page().ControlNames()) QVERIFY2(dialog.View().Find(name), name.c_str());
    auto* tabs = Named<QTabWidget>(dialog, "SSTab1");
    QCOMPARE(tabs->count(), 4);
    QCOMPARE(tabs->tabText(0), QStringLiteral("&Position"));
    QCOMPARE(tabs->tabText(3), QStringLiteral("&Picture"));
    auto* gradientTabs = Named<QTabWidget>(dialog, "SSTab3");
    QCOMPARE(gradientTabs->tabText(2), QStringLiteral("&Gradient"));
    QCOMPARE(Named<QTabWidget>(dialog, "SSTab4")->tabText(1), QStringLiteral("Pre&view"));
    QCOMPARE(Named<QComboBox>(dialog, "cbxBorderStyle")->itemText(3), QStringLiteral("3 - vxInset"));
    QCOMPARE(Named<QLineEdit>(dialog, "txtIndex")->text(), QStringLiteral("1"));
    QCOMPARE(Named<QLineEdit>(dialog, "txtBlockBarRight")->text(), QStringLiteral("40"));
    // Loading is not an edit.
    QVERIFY(!dialog.ApplyButton()->isEnabled());
  }

  void blockPageAppliesTypedNumbersChecksAndLists() {
    VorlexWidget widget;
    LoadBar(widget);
    ScriptedDialogs dialogs;
    PageDialog dialog(PageKind::Block, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    Type(Named<QLineEdit>(dialog, "txtBlockBarLeft"), QStringLiteral("25"));
    QVERIFY(dialog.ApplyButton()->isEnabled());
    QTest::mouseClick(Named<QCheckBox>(dialog, "chkBlockClickable"), Qt::LeftButton);
    Choose(Named<QComboBox>(dialog, "cbxShapeStyle"), 1);
    QCOMPARE(widget.blockBarLeft(1), 10);  // nothing reaches the control before Apply
    QTest::mouseClick(dialog.ApplyButton(), Qt::LeftButton);
    QCOMPARE(widget.blockBarLeft(1), 25);
    QVERIFY(!widget.blockClickable(1));
    QCOMPARE(widget.blockShapeStyle(1), VorlexWidget::vxCircle);
    QVERIFY(!dialog.ApplyButton()->isEnabled());
  }

  void blockPageScrollsToAnotherBlockAndInsertsAToken() {
    VorlexWidget widget;
    LoadBar(widget);
    ScriptedDialogs dialogs;
    PageDialog dialog(PageKind::Block, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    auto* scroll = Named<QScrollBar>(dialog, "HScroll1");
    scroll->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QCOMPARE(Named<QLineEdit>(dialog, "txtIndex")->text(), QStringLiteral("2"));
    auto* text = Named<QLineEdit>(dialog, "txtBlockText");
    QCOMPARE(text->text(), QStringLiteral("Two"));
    Type(text, QStringLiteral("at "));
    Choose(Named<QComboBox>(dialog, "cbxTextFormat"), 0);
    QCOMPARE(text->text(), QStringLiteral("at !short time! "));
    QTest::mouseClick(Named<QPushButton>(dialog, "OK"), Qt::LeftButton);
    QCOMPARE(widget.blockText(2), QStringLiteral("at !short time! "));
    QCOMPARE(widget.blockText(1), QStringLiteral("One"));
  }

  void blockPageAddsAtOnceAndColoursThroughTheDialog() {
    VorlexWidget widget;
    ScriptedDialogs dialogs;
    PageDialog dialog(PageKind::Block, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    QVERIFY(!Named<QTabWidget>(dialog, "SSTab1")->isEnabled());
    QTest::mouseClick(Named<QPushButton>(dialog, "cmdAddBlock"), Qt::LeftButton);
    QCOMPARE(widget.blocks(), 1);
    QVERIFY(Named<QTabWidget>(dialog, "SSTab1")->isEnabled());
    dialogs.answer = [](vorlex::editors::CommonDialog& d) {
      d.Color = 0x00FF00;
      return true;
    };
    QTest::mouseClick(Named<QPushButton>(dialog, "cmdColorSelection"), Qt::LeftButton);
    QCOMPARE(dialogs.shown, QStringList{QStringLiteral("color")});
    QCOMPARE(Named<QLineEdit>(dialog, "txtColor")->palette().color(QPalette::Base), QColor(0, 255, 0));
    QTest::mouseClick(dialog.ApplyButton(), Qt::LeftButton);
    QCOMPARE(widget.blockColor(1), QColor(0, 255, 0));
  }

  void gradientBarsRelabelPaintPreviewsAndApply() {
    VorlexWidget widget;
    LoadBar(widget);
    ScriptedDialogs dialogs;
    PageDialog dialog(PageKind::Block, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    Choose(Named<QComboBox>(dialog, "cbxGradientStyle"), 1);
    auto* green = Named<QScrollBar>(dialog, "hslColor(1)");
    green->triggerAction(QAbstractSlider::SliderToMaximum);
    QCOMPARE(Named<QLabel>(dialog, "lblColor(1)")->text(), QStringLiteral("Start Green = 255"));
    const QImage preview = Named<PreviewBox>(dialog, "pctColor(1)")->Image();
    QVERIFY(!Uniform(preview));
    QVERIFY(!Uniform(Named<PreviewBox>(dialog, "pctResult")->Image()));
    QTest::mouseClick(dialog.ApplyButton(), Qt::LeftButton);
    QCOMPARE(widget.blockGradientStyle(1), VorlexWidget::vxLeftHGradient);
    QCOMPARE(widget.blockGradientColor(1).green(), 255);
  }

  void cancelledDialogsAndCancelLeaveTheControlAlone() {
    VorlexWidget widget;
    LoadBar(widget);
    ScriptedDialogs dialogs;
    const QColor brush = widget.blockBrushColor(1);
    PageDialog dialog(PageKind::Block, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    QTest::mouseClick(Named<QPushButton>(dialog, "cmdBrushColor"), Qt::LeftButton);
    QCOMPARE(dialogs.shown, QStringList{QStringLiteral("color")});
    Type(Named<QLineEdit>(dialog, "txtBlockKey"), QStringLiteral("renamed"));
    QTest::mouseClick(Named<QPushButton>(dialog, "Cancel"), Qt::LeftButton);
    QCOMPARE(widget.blockKey(1), QStringLiteral("one"));
    QCOMPARE(widget.blockBrushColor(1), brush);
  }

  void captionPageAppliesTextAlignmentAndAngle() {
    VorlexWidget widget;
    LoadBar(widget);
    ScriptedDialogs dialogs;
    PageDialog dialog(PageKind::Caption, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Caption"));
    QCOMPARE(Named<QLineEdit>(dialog, "txtCaption")->text(), QStringLiteral("bar"));
    QCOMPARE(Named<QLineEdit>(dialog, "txtCaptionFont")->text(), QStringLiteral("MS Sans Serif"));
    Type(Named<QLineEdit>(dialog, "txtCaption"), QStringLiteral("Hello"));
    Choose(Named<QComboBox>(dialog, "cbxCaptionAlignment"), 2);
    Type(Named<QLineEdit>(dialog, "txtCaptionAngle"), QStringLiteral("405"));
    QTest::mouseClick(dialog.ApplyButton(), Qt::LeftButton);
    QCOMPARE(widget.caption(), QStringLiteral("Hello"));
    QCOMPARE(widget.captionAlignment(), VorlexWidget::vxCenterRight);
    QCOMPARE(widget.captionAngle(), 45);
    QCOMPARE(QString::fromStdString(widget.control().get_Font()->Name()), QStringLiteral("MS Sans Serif"));
  }

  void captionFontReachesTheControlOnApply() {
    VorlexWidget widget;
    LoadBar(widget);
    ScriptedDialogs dialogs;
    dialogs.answer = [](vorlex::editors::CommonDialog& d) {
      d.FontName = "DejaVu Serif";
      d.FontSize = 12;
      d.FontBold = true;
      return true;
    };
    PageDialog dialog(PageKind::Caption, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    QTest::mouseClick(Named<QPushButton>(dialog, "cmdFontSelection"), Qt::LeftButton);
    // The box keeps the control's font name until the page is loaded again.
    QCOMPARE(Named<QLineEdit>(dialog, "txtCaptionFont")->text(), QStringLiteral("MS Sans Serif"));
    QTest::mouseClick(dialog.ApplyButton(), Qt::LeftButton);
    QCOMPARE(QString::fromStdString(widget.control().get_Font()->Name()), QStringLiteral("DejaVu Serif"));
    QVERIFY(widget.control().get_Font()->Bold());
  }

  void boundariesPageAppliesLeadingNumbers() {
    VorlexWidget widget;
    ScriptedDialogs dialogs;
    PageDialog dialog(PageKind::Boundaries, widget, nullptr, &dialogs);
    Unexpected(dialog);
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Boundaries"));
    QCOMPARE(Named<QLineEdit>(dialog, "txtHMaxValue")->text(), QStringLiteral("100"));
    Type(Named<QLineEdit>(dialog, "txtHMaxValue"), QStringLiteral("12abc"));
    Type(Named<QLineEdit>(dialog, "txtVMinValue"), QStringLiteral("letters"));
    Type(Named<QLineEdit>(dialog, "txtVMaxValue"), QStringLiteral("250"));
    QTest::mouseClick(Named<QPushButton>(dialog, "OK"), Qt::LeftButton);
    QCOMPARE(widget.hMaxValue(), 12);
    QCOMPARE(widget.vMinValue(), 0);
    QCOMPARE(widget.vMaxValue(), 250);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
  }

  void aboutBoxShowsItsTextsAndPaintsThePanel() {
    RecordingSystem system;
    AboutDialog about(nullptr, &system);
    QCOMPARE(about.windowTitle(), QStringLiteral("About Vorlex ActiveX control"));
    for (const auto& label : vorlex::editors::AboutBox::Labels())
      QCOMPARE(Named<QLabel>(about, std::string(label.control).c_str())->text(), QString::fromStdString(label.text));
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    QVERIFY(about.Box().LastGranularity() >= 0);
    QVERIFY(!Uniform(Named<PreviewBox>(about, "Picture1")->Image()));
  }

  void aboutBoxSystemInfoReportsTheViewerUnavailable() {
    RecordingSystem system;
    AboutDialog about(nullptr, &system);
    about.show();
    QTest::mouseClick(Named<QPushButton>(about, "cmdSysInfo"), Qt::LeftButton);
    QCOMPARE(system.messages, QStringList{QStringLiteral("System Information Is Unavailable At This Time")});
    QVERIFY(system.started.isEmpty());
    QTest::mouseClick(Named<QPushButton>(about, "cmdOK"), Qt::LeftButton);
    QVERIFY(about.Box().Closed());
    QCOMPARE(about.result(), int(QDialog::Accepted));
  }
};

QTEST_MAIN(PagesTest)
#include "pages_test.moc"
