// vorlex-qt-screenshots OUTDIR: the demo window, every tab of the Block page,
// the Caption and Boundaries pages and the About box, each grabbed to a PNG.

#include <QApplication>
#include <QDir>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <cstdio>

#include "about_dialog.h"
#include "page_dialog.h"
#include "vorlex/qt/VorlexWidget.h"

using vorlex::qt::AboutDialog;
using vorlex::qt::PageDialog;
using vorlex::qt::PageKind;
using vorlex::qt::VorlexWidget;

namespace {
QDir g_out;
int g_failures = 0;

void Save(QWidget& widget, const QString& name) {
  widget.show();
  if (!QTest::qWaitForWindowExposed(&widget)) ++g_failures;
  QTest::qWait(100);
  const QString path = g_out.filePath(name + QStringLiteral(".png"));
  if (!widget.grab().save(path)) {
    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    ++g_failures;
    return;
  }
  std::printf("%s\n", qPrintable(path));
}

QTabWidget* Tabs(QWidget& dialog, const char* name) { return dialog.findChild<QTabWidget*>(QString::fromLatin1(name)); }

// The Block page with each outer tab, and each inner tab of the outer tabs
// that have them.
void BlockPage(VorlexWidget& bar) {
  PageDialog dialog(PageKind::Block, bar);
  QTabWidget* outer = Tabs(dialog, "SSTab1");
  const struct {
    int tab;
    const char* inner;
    const char* name;
  } pages[] = {{0, nullptr, "block-position"},
               {1, "SSTab2", "block-text"},
               {2, "SSTab3", "block-appearance"},
               {3, "SSTab4", "block-picture"}};
  for (const auto& page : pages) {
    outer->setCurrentIndex(page.tab);
    QTabWidget* inner = page.inner ? Tabs(dialog, page.inner) : nullptr;
    const int count = inner ? inner->count() : 1;
    for (int i = 0; i < count; ++i) {
      QString name = QString::fromLatin1(page.name);
      if (inner) {
        inner->setCurrentIndex(i);
        name += QLatin1Char('-') + inner->tabText(i).remove(QLatin1Char('&')).toLower();
      }
      Save(dialog, name);
    }
  }
}
}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "usage: vorlex-qt-screenshots OUTDIR\n");
    return 2;
  }
  g_out = QDir(QString::fromLocal8Bit(argv[1]));
  if (!g_out.mkpath(QStringLiteral("."))) return 1;

  QWidget window;
  window.setWindowTitle(QStringLiteral("Vorlex"));
  auto* bar = new VorlexWidget(&window);
  QString error;
  if (!bar->loadForm(QStringLiteral(":/vorlex/demo.frm"), &error)) {
    std::fprintf(stderr, "%s\n", qPrintable(error));
    return 1;
  }
  bar->setMinimumSize(bar->size());
  auto* layout = new QVBoxLayout(&window);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->addWidget(bar);
  Save(window, QStringLiteral("demo"));

  // The pages as Designer opens them: the control at design time.
  bar->setUserMode(false);
  BlockPage(*bar);
  {
    PageDialog caption(PageKind::Caption, *bar);
    Save(caption, QStringLiteral("caption"));
  }
  {
    PageDialog boundaries(PageKind::Boundaries, *bar);
    Save(boundaries, QStringLiteral("boundaries"));
  }
  {
    AboutDialog about;
    Save(about, QStringLiteral("about"));
  }
  return g_failures == 0 ? 0 : 1;
}
