#pragma once
// The About box as a Qt dialog over the shared About box logic.

#include <QDialog>
#include <memory>

#include "editors/about_box.h"
#include "qt_page_view.h"

namespace vorlex::qt {

class AboutDialog final : public QDialog {
 public:
  // system: the system calls to use; Qt's own when null.
  explicit AboutDialog(QWidget* parent = nullptr, editors::AboutSystem* system = nullptr);
  ~AboutDialog() override;

  editors::AboutBox& Box() { return *box_; }
  QtPageView& View() { return view_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QtPageView view_;
  std::unique_ptr<editors::AboutSystem> ownSystem_;
  std::unique_ptr<editors::AboutBox> box_;
};

// The product icon: a small bar drawn by the control itself.
QIcon VorlexIcon();

}  // namespace vorlex::qt
