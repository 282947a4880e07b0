#pragma once
// A bag in memory that also records every call: the names written (with the
// value and default as handed over) and the names read.

#include <string>
#include <vector>

#include "vorlex/PropertyBag.h"

namespace vorlex::persist_test {

class RecordingBag : public MemoryPropertyBag {
 public:
  struct Write {
    std::string name;
    Variant value;
    Variant defaultValue;
  };
  void WriteProperty(const std::string& name, const Variant& value, const Variant& defaultValue) override {
    writes.push_back({name, value, defaultValue});
    MemoryPropertyBag::WriteProperty(name, value, defaultValue);
  }
  Variant ReadProperty(const std::string& name, const Variant& defaultValue) override {
    reads.push_back(name);
    readDefaults.push_back(defaultValue);
    return MemoryPropertyBag::ReadProperty(name, defaultValue);
  }
  const Write* Written(const std::string& name) const {
    for (const Write& w : writes) {
      if (w.name == name) return &w;
    }
    return nullptr;
  }

  std::vector<Write> writes;
  std::vector<std::string> reads;
  std::vector<Variant> readDefaults;
};

}  // namespace vorlex::persist_test
