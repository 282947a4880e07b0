#pragma once
// The 34 saved fields of a block: the prefix of each key ("Block.Color(" for
// "Block.Color(12)"), the kind of value kept, the default handed to the bag,
// and the field of the record. In the order they are saved and loaded.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "control/block_definition.h"
#include "vorlex/Variant.h"

namespace vorlex {

enum class BagKind { Text, Integer, Long, Boolean, Font, Picture };

struct BlockKey {
  std::string_view prefix;
  BagKind kind;
  // The default as the bag gets it (the font's comes from the container).
  int32_t defaultValue;
  std::variant<std::string BlockDefinition::*, int16_t BlockDefinition::*, OLE_COLOR BlockDefinition::*,
               FontPtr BlockDefinition::*, PicturePtr BlockDefinition::*>
      field;
};

inline constexpr size_t kBlockKeyCount = 34;
extern const std::array<BlockKey, kBlockKeyCount> kBlockKeys;

// "Block.Color(" and 12 make "Block.Color(12)".
std::string BlockKeyName(std::string_view prefix, int32_t index);

// The default a block key is written and read with.
Variant BlockKeyDefault(const BlockKey& key, const FontPtr& ambientFont);

// The field as the bag stores it, and a bag value stored into the field,
// converted to the field's kind (errors 6 and 13 as the conversions raise).
Variant BlockFieldValue(const BlockKey& key, const BlockDefinition& block);
void StoreBlockField(const BlockKey& key, BlockDefinition& block, const Variant& value);

}  // namespace vorlex
