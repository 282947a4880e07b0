#pragma once
// Live block text: tokens between exclamation marks replaced on every redraw by
// the time, the date, disk figures or the block's percentages; the resizing
// tokens also rewrite the block's bar values.

#include <string>

#include "vorlex/ClockService.h"
#include "vorlex/DiskService.h"

namespace vorlex {

struct BlockDefinition;

struct LiveTextContext {
  DiskService& disks;
  const ClockService& clock;
  BlockDefinition& block;  // its percentages are read, its bar values may be rewritten
  int16_t hRange;
  int16_t vRange;
};

// The text to display; the block's stored text is not changed.
std::string ExpandLiveText(const std::string& text, LiveTextContext& context);

}  // namespace vorlex
