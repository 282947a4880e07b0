#pragma once
// The About box's system calls here: no registry (its reads fail, so System
// Info reports that the viewer is unavailable), programs started with
// QProcess, the message box a QMessageBox.

#include <QPointer>
#include <QWidget>

#include "editors/about_box.h"

namespace vorlex::qt {

class QtAboutSystem final : public editors::AboutSystem {
 public:
  explicit QtAboutSystem(QWidget* parent) : parent_(parent) {}
  long RegOpenKeyExA(uint32_t root, const std::string& subKey, uint32_t access, uintptr_t* key) override;
  long RegQueryValueExA(uintptr_t key, const std::string& valueName, uint32_t* type, uint8_t* data,
                        uint32_t* size) override;
  long RegCloseKey(uintptr_t key) override;
  bool FileExists(const std::string& path) override;
  void StartProgram(const std::string& path) override;
  void MessageBox(const std::string& text) override;

 private:
  QPointer<QWidget> parent_;
};

}  // namespace vorlex::qt
