// The bag's default rule and the bag kept in memory.

#include <memory>

#include "vorlex/Picture.h"
#include "vorlex/PropertyBag.h"

namespace vorlex {

namespace {

// An object as the bag sees it: an empty picture holds nothing to keep.
std::shared_ptr<Object> Kept(const Variant& v) {
  std::shared_ptr<Object> object = v.ToObject();
  const auto* picture = dynamic_cast<const Picture*>(object.get());
  if (picture != nullptr && picture->Type() == kPicTypeNone) return nullptr;
  return object;
}

}  // namespace

bool EqualsDefault(const Variant& value, const Variant& defaultValue) {
  if (value.IsObject() || defaultValue.IsObject()) {
    return value.IsObject() && defaultValue.IsObject() && Kept(value) == Kept(defaultValue);
  }
  if (value.IsString() || defaultValue.IsString()) {
    if (!(value.IsString() || value.IsNumeric())) return false;
    if (!(defaultValue.IsString() || defaultValue.IsNumeric())) return false;
    return value.ToString() == defaultValue.ToString();
  }
  // Neither is a string here, so IsNumeric means a number, a Boolean or Empty.
  if (value.IsNumeric() && defaultValue.IsNumeric()) return value.ToDouble() == defaultValue.ToDouble();
  return value.Type() == defaultValue.Type();
}

void MemoryPropertyBag::WriteProperty(const std::string& name, const Variant& value, const Variant& defaultValue) {
  if (EqualsDefault(value, defaultValue)) {
    Erase(name);
  } else {
    Put(name, value);
  }
}

Variant MemoryPropertyBag::ReadProperty(const std::string& name, const Variant& defaultValue) {
  lastRead_ = name;
  const PropertyEntry* entry = Find(name);
  return entry != nullptr ? entry->value : defaultValue;
}

void MemoryPropertyBag::Put(const std::string& name, Variant value, int line) {
  const auto found = index_.find(name);
  if (found != index_.end()) {
    entries_[found->second].value = std::move(value);
    entries_[found->second].line = line;
    return;
  }
  index_.emplace(name, entries_.size());
  entries_.push_back({name, std::move(value), line});
  erased_.push_back(false);
}

void MemoryPropertyBag::Erase(const std::string& name) {
  const auto found = index_.find(name);
  if (found == index_.end()) return;
  erased_[found->second] = true;
  entries_[found->second].value = Variant();
  index_.erase(found);
}

const PropertyEntry* MemoryPropertyBag::Find(const std::string& name) const {
  const auto found = index_.find(name);
  return found == index_.end() ? nullptr : &entries_[found->second];
}

std::vector<PropertyEntry> MemoryPropertyBag::Entries() const {
  std::vector<PropertyEntry> kept;
  kept.reserve(index_.size());
  for (size_t i = 0; i < entries_.size(); ++i) {
    if (!erased_[i]) kept.push_back(entries_[i]);
  }
  return kept;
}

}  // namespace vorlex
