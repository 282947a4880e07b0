// The widget: painting, resizing, mouse input, pass-through changes, forms.

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

#include "qt_convert.h"
#include "vorlex/AutomationError.h"
#include "vorlex/FormText.h"
#include "vorlex_widget_private.h"

namespace vorlex::qt {

namespace {
constexpr int16_t kLeftButton = 1;
constexpr int16_t kRightButton = 2;
constexpr int16_t kMiddleButton = 4;
constexpr int16_t kShiftMask = 1;
constexpr int16_t kCtrlMask = 2;
constexpr int16_t kAltMask = 4;

int16_t ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return kLeftButton;
    case Qt::RightButton:
      return kRightButton;
    case Qt::MiddleButton:
      return kMiddleButton;
    default:
      return 0;
  }
}

int16_t ShiftOf(Qt::KeyboardModifiers modifiers) {
  int16_t shift = 0;
  if (modifiers & Qt::ShiftModifier) shift |= kShiftMask;
  if (modifiers & Qt::ControlModifier) shift |= kCtrlMask;
  if (modifiers & Qt::AltModifier) shift |= kAltMask;
  return shift;
}
}  // namespace

VorlexWidget::VorlexWidget(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>(*this)) {
  // The control paints every pixel of the widget from its own surface.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_NoSystemBackground);
  resize(sizeHint());
  d->site.SyncSize();
  d->control.InitProperties();
}

VorlexWidget::~VorlexWidget() = default;

vorlex::Vorlex& VorlexWidget::control() { return d->control; }
const vorlex::Vorlex& VorlexWidget::control() const { return d->control; }

// 900 x 315 twips, a newly placed control's size.
QSize VorlexWidget::sizeHint() const { return {60, 21}; }

bool VorlexWidget::userMode() const { return d->site.AmbientUserMode(); }
void VorlexWidget::setUserMode(bool userMode) { d->site.SetUserMode(userMode); }
void VorlexWidget::setDiskService(std::unique_ptr<vorlex::DiskService> disks) {
  if (disks) d->site.SetDisks(std::move(disks));
}
void VorlexWidget::setClockService(std::unique_ptr<vorlex::ClockService> clock) {
  if (clock) d->site.SetClock(std::move(clock));
}

void VorlexWidget::paintEvent(QPaintEvent*) {
  d->site.SyncSize();
  d->site.painting = true;
  try {
    d->control.UserControl_Paint();
  } catch (const std::exception& e) {
    // The window keeps what the part drawn so far left on it.
    qWarning("Vorlex: painting failed: %s", e.what());
  }
  d->site.painting = false;
  const QImage image = d->site.WindowImage();
  QPainter painter(this);
  // The window is in logical pixels; on a high-density screen the painter
  // scales it to the device's pixels.
  if (image.isNull()) {
    painter.fillRect(rect(), Qt::black);
  } else {
    painter.drawImage(QRect(0, 0, image.width(), image.height()), image);
  }
}

void VorlexWidget::resizeEvent(QResizeEvent*) { d->site.SyncSize(); }

void VorlexWidget::mousePressEvent(QMouseEvent* event) {
  d->pressed = true;
  event->accept();
}

void VorlexWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  const bool click = d->pressed && !d->afterDoubleClick && rect().contains(at.toPoint());
  d->pressed = false;
  d->afterDoubleClick = false;
  try {
    d->control.UserControl_MouseUp(ButtonOf(event->button()), ShiftOf(event->modifiers()), static_cast<float>(at.x()),
                                   static_cast<float>(at.y()));
    if (click) d->control.UserControl_Click();
  } catch (const AutomationError& e) {
    qWarning("Vorlex: %s", e.what());
  }
  event->accept();
}

void VorlexWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  d->pressed = true;
  d->afterDoubleClick = true;
  d->control.UserControl_DblClick();
  event->accept();
}

void VorlexWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (!d) return;
  switch (event->type()) {
    case QEvent::FontChange:
      // A font given to the widget (Designer, a style sheet) becomes the control's.
      if (!d->site.settingFont && !SameFont(*d->site.Font(), font())) d->control.putref_Font(ToVorlexFont(font()));
      break;
    case QEvent::EnabledChange:
      // The disabled look is drawn by the control: colours become DisabledColor.
      update();
      break;
    default:
      break;
  }
}

bool VorlexWidget::loadForm(const QString& path, QString* error) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    if (error) *error = path + ": " + file.errorString();
    return false;
  }
  const QByteArray text = file.readAll();
  // Resources have no folder on disk; their pictures resolve from the
  // current folder.
  const std::string anchor = path.startsWith(QLatin1Char(':')) ? std::string("form.frm") : path.toStdString();
  try {
    std::vector<FormControl> forms =
        ReadFormText(std::string_view(text.constData(), static_cast<size_t>(text.size())), anchor);
    if (forms.empty()) {
      if (error) *error = path + ": the form holds no Vorlex control";
      return false;
    }
    ApplyForm(d->control, forms.front(), anchor);
  } catch (const FormError& e) {
    if (error) *error = QString::fromStdString(e.what());
    return false;
  }
  update();
  return true;
}

bool VorlexWidget::saveForm(const QString& path, QString* error) const {
  const QString name = objectName().isEmpty() ? QStringLiteral("Vorlex1") : objectName();
  try {
    SaveForm(d->control, name.toStdString(), path.toStdString());
  } catch (const FormError& e) {
    if (error) *error = QString::fromStdString(e.what());
    return false;
  }
  return true;
}

namespace {
// The files a form's text refers to (pictures, the resource file of texts)
// travel inside the text as comment lines after it, "' file NAME DATA" with
// both in base64, so that a form saved in one session loads in another.
constexpr char kEmbeddedFile[] = "' file ";

QString EmbeddedFiles(const QDir& folder) {
  QString lines;
  for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    lines += QLatin1String(kEmbeddedFile) + QString::fromLatin1(name.toUtf8().toBase64()) + QLatin1Char(' ') +
             QString::fromLatin1(file.readAll().toBase64()) + QStringLiteral("\r\n");
  }
  return lines;
}

// Writes the embedded files into the folder; a name that is not a plain file
// name is left out.
void ExtractEmbeddedFiles(const QStringList& lines, const QDir& folder) {
  for (const QString& line : lines) {
    if (!line.startsWith(QLatin1String(kEmbeddedFile))) continue;
    const QStringList parts =
        line.mid(static_cast<qsizetype>(sizeof kEmbeddedFile) - 1).trimmed().split(QLatin1Char(' '));
    if (parts.size() != 2) continue;
    const QString name = QString::fromUtf8(QByteArray::fromBase64(parts[0].toLatin1()));
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')) ||
        name.startsWith(QLatin1Char('.')))
      continue;
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::WriteOnly)) file.write(QByteArray::fromBase64(parts[1].toLatin1()));
  }
}
}  // namespace

QString VorlexWidget::formText() const {
  if (!d->formFiles) d->formFiles = std::make_unique<QTemporaryDir>();
  QDir folder(d->formFiles->path());
  for (const QString& name : folder.entryList(QDir::Files)) folder.remove(name);
  const QString name = objectName().isEmpty() ? QStringLiteral("Vorlex1") : objectName();
  try {
    const std::string text =
        SaveFormText(d->control, name.toStdString(), folder.filePath(QStringLiteral("form.frm")).toStdString());
    return QString::fromStdString(text) + EmbeddedFiles(folder);
  } catch (const FormError& e) {
    qWarning("Vorlex: %s", e.what());
    return {};
  }
}

// The embedded files come back into the widget's own folder first. A form
// whose files are gone all the same (written by hand, say) loads without the
// lines naming them, with a warning, so that the rest of the control still
// loads.
void VorlexWidget::setFormText(const QString& text) {
  if (text.trimmed().isEmpty()) return;
  if (!d->formFiles) d->formFiles = std::make_unique<QTemporaryDir>();
  const std::string anchor = d->formFiles->filePath(QStringLiteral("form.frm")).toStdString();
  QStringList lines = text.split(QLatin1Char('\n'));
  ExtractEmbeddedFiles(lines, QDir(d->formFiles->path()));
  while (true) {
    try {
      std::vector<FormControl> forms = ReadFormText(lines.join(QLatin1Char('\n')).toStdString(), anchor);
      if (!forms.empty()) ApplyForm(d->control, forms.front(), anchor);
      break;
    } catch (const FormError& e) {
      qWarning("Vorlex: %s", e.what());
      if (e.Line() <= 0 || e.Line() > lines.size()) break;
      lines.removeAt(e.Line() - 1);
    }
  }
  update();
}

}  // namespace vorlex::qt
