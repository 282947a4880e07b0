#include "vorlex/Font.h"

#include "vorlex/Numeric.h"

namespace vorlex {

Font::Font(std::string name, double size) : name_(std::move(name)) { SetSize(size); }

void Font::SetSize(double points) {
  // A currency value: four decimals, rounded half to even like every conversion.
  sizeTenThousandths_ = static_cast<int64_t>(RoundHalfEven(points * 10000.0));
}

}  // namespace vorlex
