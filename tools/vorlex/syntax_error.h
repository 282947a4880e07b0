#pragma once
// What is wrong with a statement that does not read as Basic.

#include <stdexcept>
#include <string>

namespace vorlex::cli {

class SyntaxError : public std::runtime_error {
 public:
  explicit SyntaxError(const std::string& problem) : std::runtime_error(problem) {}
};

}  // namespace vorlex::cli
