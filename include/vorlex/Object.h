#pragma once
// Base of the objects a tagged value can carry (fonts, pictures).

namespace vorlex {

class Object {
 public:
  virtual ~Object() = default;
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
};

}  // namespace vorlex
