#include "page_dialog.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QVBoxLayout>

#include "qt_dialogs.h"
#include "vorlex/AutomationError.h"
#include "vorlex/qt/VorlexWidget.h"

namespace vorlex::qt {

namespace {
QString Title(std::string_view caption) {
  QString title = QString::fromUtf8(caption.data(), static_cast<qsizetype>(caption.size()));
  title.remove(QLatin1Char('&'));
  return title;
}
}  // namespace

PageDialog::PageDialog(PageKind kind, VorlexWidget& widget, QWidget* parent, editors::DialogService* dialogs)
    : QDialog(parent), widget_(&widget), object_(std::make_unique<editors::AutomationControlObject>(widget.control())) {
  if (!dialogs) {
    ownDialogs_ = std::make_unique<QtDialogs>(this);
    dialogs = ownDialogs_.get();
  }
  auto* layout = new QVBoxLayout(this);
  auto* content = new QWidget(this);
  layout->addWidget(content);
  switch (kind) {
    case PageKind::Block:
      BuildBlockPage(view_, content);
      break;
    case PageKind::Caption:
      BuildCaptionPage(view_, content);
      break;
    case PageKind::Boundaries:
      BuildBoundariesPage(view_, content);
      break;
  }
  // The page's constructor fills the lists, so the widgets come first.
  page_ = editors::MakePropertyPage(kind, view_, *dialogs);
  setWindowTitle(Title(page_->Caption()));
  // The small pages get room for their lists' longest items.
  if (kind != PageKind::Block) setMinimumWidth(360);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
  buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OK"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("Cancel"));
  apply_ = buttons->button(QDialogButtonBox::Apply);
  apply_->setObjectName(QStringLiteral("Apply"));
  apply_->setEnabled(false);
  layout->addWidget(buttons);
  connect(apply_, &QPushButton::clicked, this, [this] { Apply(); });
  connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    Apply();
    accept();
  });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  view_.SetChangedListener([this](bool changed) { apply_->setEnabled(changed); });
  view_.SetRoute([this](const std::string& control) { Route(control); });
  page_->SetSelectedControls({object_.get()});
  AtDesignTime([this] { page_->SelectionChanged(); });
}

template <class Step>
void PageDialog::AtDesignTime(Step step) {
  const bool userMode = widget_ && widget_->userMode();
  if (widget_) widget_->setUserMode(false);
  try {
    step();
  } catch (const std::exception& e) {
    Report(e);
  }
  if (widget_) widget_->setUserMode(userMode);
}

PageDialog::~PageDialog() {
  // The view outlives the page's last use; stop routing before teardown.
  view_.SetRoute({});
  view_.SetChangedListener({});
}

void PageDialog::Route(const std::string& control) {
  AtDesignTime([&] { page_->ControlEvent(control); });
}

void PageDialog::Apply() {
  if (!page_->Changed()) return;
  AtDesignTime([this] {
    page_->ApplyChanges();
    page_->SetChanged(false);
  });
}

void PageDialog::Report(const std::exception& error) {
  const auto* automation = dynamic_cast<const AutomationError*>(&error);
  const QString text = automation ? QStringLiteral("Error %1: %2").arg(automation->Number()).arg(error.what())
                                  : QString::fromUtf8(error.what());
  if (reporter_) {
    reporter_(text);
  } else {
    QMessageBox::warning(this, windowTitle(), text);
  }
}

}  // namespace vorlex::qt
