#include "documents/sheet_item.h"

#include <utility>

namespace documents {

// A new place alone lets the window keep what it has drawn.
void SheetItem::show(PlacedItem item) {
  const bool moved = item.place != shown_.place;
  const bool changed = item.drawing.operations != shown_.drawing.operations;
  shown_ = std::move(item);
  if (moved) notify(forms::Aspect::Range);
  if (changed) notify(forms::Aspect::Image);
}

}  // namespace documents
