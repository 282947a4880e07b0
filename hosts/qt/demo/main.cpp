// vorlex-qt-demo: a form's Vorlex bar in a window, live, with its clicks
// printed as "BlockClicked N".

#include <QApplication>
#include <QCommandLineParser>
#include <QStorageInfo>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdio>
#include <map>

#include "vorlex/DiskService.h"
#include "vorlex/qt/VorlexWidget.h"

namespace {
// The dashboard's gauge reads drive D. Disk figures are 32-bit, so it shows
// the smallest mounted volume from 1 MiB to 2 GiB that holds something.
QString SmallVolume() {
  QString best;
  qint64 bestSize = 0;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const qint64 size = volume.bytesTotal();
    if (!volume.isValid() || size < (qint64{1} << 20) || size >= (qint64{2} << 30)) continue;
    if (volume.bytesTotal() - volume.bytesFree() <= 0) continue;
    if (best.isEmpty() || size < bestSize) {
      best = volume.rootPath();
      bestSize = size;
    }
  }
  return best;
}
}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("vorlex-qt-demo"));

  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Shows a Vorlex form, live. Clicks print BlockClicked N."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("FORM"), QStringLiteral("a form file (default: the built-in dashboard)"));
  const QCommandLineOption drive(QStringLiteral("drive"),
                                 QStringLiteral("drive letter L reports the disk that holds PATH (C is /; D is the "
                                                "smallest volume below 2 GiB)"),
                                 QStringLiteral("L=PATH"));
  parser.addOption(drive);
  parser.process(app);

  std::map<char, std::string> drives = {{'C', "/"}};
  if (const QString small = SmallVolume(); !small.isEmpty()) drives['D'] = small.toStdString();
  for (const QString& value : parser.values(drive)) {
    const qsizetype equals = value.indexOf(QLatin1Char('='));
    if (equals != 1) {
      std::fprintf(stderr, "vorlex-qt-demo: --drive takes L=PATH, not %s\n", qPrintable(value));
      return 2;
    }
    drives[value.at(0).toUpper().toLatin1()] = value.mid(2).toStdString();
  }

  const QString form = parser.positionalArguments().value(0, QStringLiteral(":/vorlex/demo.frm"));
  QWidget window;
  window.setWindowTitle(QStringLiteral("Vorlex"));
  auto* bar = new vorlex::qt::VorlexWidget(&window);
  bar->setDiskService(vorlex::SystemDisks(drives));
  QString error;
  if (!bar->loadForm(form, &error)) {
    std::fprintf(stderr, "vorlex-qt-demo: %s\n", qPrintable(error));
    return 2;
  }
  QObject::connect(bar, &vorlex::qt::VorlexWidget::blockClicked, [](int block) {
    std::printf("BlockClicked %d\n", block);
    std::fflush(stdout);
  });
  auto* layout = new QVBoxLayout(&window);
  layout->setContentsMargins(8, 8, 8, 8);
  bar->setMinimumSize(bar->size());
  layout->addWidget(bar);
  window.show();
  return app.exec();
}
