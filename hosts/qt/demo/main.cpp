// vorlex-qt-demo: a form's Vorlex bar in a window, live, with its clicks
// printed as "BlockClicked N".

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <map>

#include "demo_window.h"

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
  if (const QString small = vorlex::qt::demo::SmallVolume(); !small.isEmpty()) drives['D'] = small.toStdString();
  for (const QString& value : parser.values(drive)) {
    const qsizetype equals = value.indexOf(QLatin1Char('='));
    if (equals != 1) {
      std::fprintf(stderr, "vorlex-qt-demo: --drive takes L=PATH, not %s\n", qPrintable(value));
      return 2;
    }
    drives[value.at(0).toUpper().toLatin1()] = value.mid(2).toStdString();
  }

  const QString form = parser.positionalArguments().value(0, QStringLiteral(":/vorlex/demo.frm"));
  vorlex::qt::demo::DemoWindow window(drives, stdout);
  QString error;
  if (!window.Load(form, &error)) {
    std::fprintf(stderr, "vorlex-qt-demo: %s\n", qPrintable(error));
    return 2;
  }
  window.show();
  return app.exec();
}
