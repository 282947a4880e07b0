#pragma once
// One property page of the control as a Qt dialog: the page's widgets (its
// layout), its logic over them, and OK, Cancel and Apply. Apply is enabled
// by the page's changed flag.

#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <functional>
#include <memory>

#include "editors/control_object.h"
#include "editors/page_factory.h"
#include "editors/property_page.h"
#include "qt_page_view.h"

namespace vorlex::qt {

class VorlexWidget;

using editors::PageKind;

class PageDialog final : public QDialog {
 public:
  // dialogs: the system dialogs to use; Qt's own when null.
  PageDialog(PageKind kind, VorlexWidget& widget, QWidget* parent = nullptr, editors::DialogService* dialogs = nullptr);
  ~PageDialog() override;

  editors::PropertyPage& Page() { return *page_; }
  QtPageView& View() { return view_; }
  QPushButton* ApplyButton() const { return apply_; }
  // Writes the page to the control and clears the changed flag.
  void Apply();
  // Where the automation errors of the page's handlers go: a message box
  // unless replaced.
  void SetErrorReporter(std::function<void(const QString&)> reporter) { reporter_ = std::move(reporter); }

 private:
  // Runs a step of the page with the control at design time, as a page
  // always finds it (DontRefreshAfterPropertyPage is design-time only).
  template <class Step>
  void AtDesignTime(Step step);
  void Route(const std::string& control);
  void Report(const std::exception& error);

  QPointer<VorlexWidget> widget_;
  QtPageView view_;
  std::unique_ptr<editors::DialogService> ownDialogs_;
  std::unique_ptr<editors::ControlObject> object_;
  std::unique_ptr<editors::PropertyPage> page_;
  QPushButton* apply_ = nullptr;
  std::function<void(const QString&)> reporter_;
};

// The page layouts: each builds its widgets into the container and registers
// them with the view under the logic's names.
void BuildBlockPage(QtPageView& view, QWidget* container);
void BuildCaptionPage(QtPageView& view, QWidget* container);
void BuildBoundariesPage(QtPageView& view, QWidget* container);

}  // namespace vorlex::qt
