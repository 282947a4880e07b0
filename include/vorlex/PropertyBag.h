#pragma once
// The container's property bag: a flat store of named tagged values. A value
// equal to the default it is written with is not kept, and reading a name the
// bag does not hold gives the default the read passes, so every key's default
// is part of the saved format.

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "vorlex/Variant.h"

namespace vorlex {

class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  virtual void WriteProperty(const std::string& name, const Variant& value, const Variant& defaultValue) = 0;
  virtual Variant ReadProperty(const std::string& name, const Variant& defaultValue) = 0;
};

// Whether a bag keeps nothing for a value written with this default. Numbers
// and booleans compare by value whatever their width (Integer 3 equals Long 3);
// a text compares with the default's text (the text "0" equals the number 0);
// objects compare by identity, and an empty picture counts as no picture.
bool EqualsDefault(const Variant& value, const Variant& defaultValue);

// One stored value with the line of the form text it came from (0 when it was
// written in memory).
struct PropertyEntry {
  std::string name;
  Variant value;
  int line = 0;
};

// A bag in memory that keeps its entries in the order they were first written.
class MemoryPropertyBag : public PropertyBag {
 public:
  void WriteProperty(const std::string& name, const Variant& value, const Variant& defaultValue) override;
  Variant ReadProperty(const std::string& name, const Variant& defaultValue) override;

  // Stores a value as it is, default or not (a reader of saved text fills the
  // bag this way).
  void Put(const std::string& name, Variant value, int line = 0);
  void Erase(const std::string& name);
  const PropertyEntry* Find(const std::string& name) const;
  // The entries in order; erased ones are left out.
  std::vector<PropertyEntry> Entries() const;
  size_t Size() const { return index_.size(); }
  // The name of the last ReadProperty call, found or not: where a load that
  // failed on a value stopped.
  const std::string& LastRead() const { return lastRead_; }

 private:
  std::vector<PropertyEntry> entries_;
  std::vector<bool> erased_;
  std::unordered_map<std::string, size_t> index_;
  std::string lastRead_;
};

}  // namespace vorlex
