#include "qt_about_system.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>

#include "vorlex/AutomationError.h"

namespace vorlex::qt {

namespace {
constexpr long kErrorFileNotFound = 2;
constexpr long kErrorInvalidHandle = 6;
}  // namespace

long QtAboutSystem::RegOpenKeyExA(uint32_t, const std::string&, uint32_t, uintptr_t* key) {
  if (key) *key = 0;
  return kErrorFileNotFound;
}

long QtAboutSystem::RegQueryValueExA(uintptr_t, const std::string&, uint32_t*, uint8_t*, uint32_t*) {
  return kErrorInvalidHandle;
}

long QtAboutSystem::RegCloseKey(uintptr_t) { return kErrorInvalidHandle; }

bool QtAboutSystem::FileExists(const std::string& path) { return QFileInfo::exists(QString::fromStdString(path)); }

void QtAboutSystem::StartProgram(const std::string& path) {
  if (!QProcess::startDetached(QString::fromStdString(path), {})) throw AutomationError(kErrFileNotFound);
}

void QtAboutSystem::MessageBox(const std::string& text) {
  QMessageBox::information(parent_, QStringLiteral("Vorlex"), QString::fromStdString(text), QMessageBox::Ok);
}

}  // namespace vorlex::qt
