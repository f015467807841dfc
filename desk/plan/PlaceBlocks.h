// Finds positions for the blocks of texts so that they stay clear of each other.
#pragma once

#include <vector>

#include "desk/plan/OwnerItem.h"

namespace Desk {

// Gives each item's block the first of its positions where it lies on no other text, or else the one where
// it covers least. The order of the items decides, so that the same project looks the same each time.
// Those that a person dragged stay where they are. Answers how many blocks lie on another text after all.
int PlaceBlocks(const std::vector<OwnerItem*>& items);
// The same for one item that comes among others, which stay as they are.
void PlaceBlock(OwnerItem& item, const std::vector<OwnerItem*>& others);

}  // namespace Desk
