#include "demo_window.h"

#include <QStorageInfo>
#include <QVBoxLayout>

#include "vorlex/DiskService.h"

namespace vorlex::qt::demo {

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

DemoWindow::DemoWindow(const std::map<char, std::string>& drives, std::FILE* out) : bar_(new VorlexWidget(this)) {
  setWindowTitle(QStringLiteral("Vorlex"));
  bar_->setDiskService(SystemDisks(drives));
  QObject::connect(bar_, &VorlexWidget::blockClicked, this, [out](int block) {
    std::fprintf(out, "BlockClicked %d\n", block);
    std::fflush(out);
  });
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->addWidget(bar_);
}

bool DemoWindow::Load(const QString& form, QString* error) {
  if (!bar_->loadForm(form, error)) return false;
  bar_->setMinimumSize(bar_->size());
  return true;
}

}  // namespace vorlex::qt::demo
