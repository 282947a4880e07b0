#include <QApplication>
#include <cstdio>

#include "vorlex/Vorlex.h"
#include "vorlex/qt/VorlexWidget.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  vorlex::qt::VorlexWidget bar;
  bar.addBlock();
  bar.setBlockText(QStringLiteral("hi"), 1);
  const QImage picture = bar.grab().toImage();
  std::printf("blocks %d text %s width %d\n", bar.blocks(), qPrintable(bar.blockText(1)), picture.width());
  return bar.control().get_Blocks() == 1 ? 0 : 1;
}
