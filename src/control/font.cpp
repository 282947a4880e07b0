#include "vorlex/Font.h"

#include <cmath>

#include "vorlex/AutomationError.h"
#include "vorlex/Numeric.h"

namespace vorlex {

Font::Font(std::string name, double size) : name_(std::move(name)) { SetSize(size); }

void Font::SetSize(double points) {
  // A currency value: four decimals, rounded half to even like every conversion.
  const double scaled = RoundHalfEven(points * 10000.0);
  if (!(std::fabs(scaled) < 9.2e18)) RaiseError(kErrOverflow);
  sizeTenThousandths_ = static_cast<int64_t>(scaled);
}

}  // namespace vorlex
