#include "about_dialog.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "preview_box.h"
#include "qt_about_system.h"
#include "vorlex/AutomationError.h"

namespace vorlex::qt {

namespace {
QFrame* Line() {
  auto* line = new QFrame;
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}
}  // namespace

AboutDialog::AboutDialog(QWidget* parent, editors::AboutSystem* system) : QDialog(parent) {
  if (!system) {
    ownSystem_ = std::make_unique<QtAboutSystem>(this);
    system = ownSystem_.get();
  }
  setWindowTitle(QString::fromUtf8(editors::AboutBox::kCaption.data(),
                                   static_cast<qsizetype>(editors::AboutBox::kCaption.size())));

  auto* panel = new PreviewBox(96, 96);
  auto* icon = new QLabel;
  icon->setPixmap(VorlexIcon().pixmap(32, 32));
  auto* name = new QLabel;
  QFont big = name->font();
  big.setPointSizeF(big.pointSizeF() * 1.6);
  big.setBold(true);
  name->setFont(big);
  auto* version = new QLabel(QString::fromUtf8(editors::AboutBox::kVersionDesignText.data(),
                                               static_cast<qsizetype>(editors::AboutBox::kVersionDesignText.size())));
  auto* information = new QLabel;
  auto* maker = new QLabel;
  maker->setWordWrap(true);
  auto* sysInfo = new QPushButton(QStringLiteral("&System Info..."));
  auto* ok = new QPushButton(QStringLiteral("OK"));
  ok->setDefault(true);

  view_.Add("Picture1", panel);
  view_.Add("Image1", icon);
  view_.Add("lblName", name);
  view_.Add("lblVersion", version);
  view_.Add("lblInformation", information);
  view_.Add("lblMaker", maker);
  view_.Add("cmdSysInfo", sysInfo);
  view_.Add("cmdOK", ok);

  auto* texts = new QVBoxLayout;
  auto* title = new QHBoxLayout;
  title->addWidget(icon);
  title->addWidget(name, 1);
  texts->addLayout(title);
  texts->addWidget(version);
  texts->addWidget(Line());
  texts->addWidget(information);
  texts->addStretch(1);

  auto* top = new QHBoxLayout;
  top->addWidget(panel, 0, Qt::AlignTop);
  top->addLayout(texts, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(maker, 1);
  auto* buttonColumn = new QVBoxLayout;
  buttonColumn->addWidget(ok);
  buttonColumn->addWidget(sysInfo);
  buttons->addLayout(buttonColumn);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(Line());
  layout->addLayout(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);

  box_ = std::make_unique<editors::AboutBox>(view_, *system);
  view_.SetRoute([this](const std::string& control) {
    try {
      if (control == "cmdSysInfo") box_->cmdSysInfo_Click();
      if (control == "cmdOK") {
        box_->cmdOK_Click();
        accept();
      }
    } catch (const AutomationError& e) {
      QMessageBox::warning(this, windowTitle(), QString::fromUtf8(e.what()));
    }
  });
  box_->Form_Load();
}

AboutDialog::~AboutDialog() { view_.SetRoute({}); }

// The panel is painted when the box is shown, with a new granularity each time.
void AboutDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  box_->Picture1_Paint();
}

}  // namespace vorlex::qt
