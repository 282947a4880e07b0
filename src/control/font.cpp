#include "vorlex/Font.h"

#include <cmath>

#include "platform/gdi.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Numeric.h"

namespace vorlex {

Font::Font(std::string name, double size) : name_(std::move(name)) { SetSize(size); }

Font::~Font() { ReleaseHandle(); }

void Font::ReleaseHandle() const {
  if (handle_) gdi::DeleteObject(reinterpret_cast<gdi::HGDIOBJ>(handle_));
  handle_ = 0;
}

void Font::SetName(std::string name) {
  name_ = std::move(name);
  ReleaseHandle();
  NotifyChanged();
}

void Font::SetSize(double points) {
  // A currency value: four decimals, rounded half to even like every conversion.
  const double scaled = RoundHalfEven(points * 10000.0);
  if (!(std::fabs(scaled) < 9.2e18)) RaiseError(kErrOverflow);
  sizeTenThousandths_ = static_cast<int64_t>(scaled);
  ReleaseHandle();
  NotifyChanged();
}

void Font::SetWeight(int16_t weight) {
  weight_ = weight;
  ReleaseHandle();
  NotifyChanged();
}
void Font::SetItalic(bool v) {
  italic_ = v;
  ReleaseHandle();
  NotifyChanged();
}
void Font::SetUnderline(bool v) {
  underline_ = v;
  ReleaseHandle();
  NotifyChanged();
}
void Font::SetStrikethrough(bool v) {
  strikethrough_ = v;
  ReleaseHandle();
  NotifyChanged();
}
void Font::SetCharset(int16_t v) {
  charset_ = v;
  ReleaseHandle();
  NotifyChanged();
}

}  // namespace vorlex
