// An item of a page layout on the miniature sheet.
#pragma once

#include "documents/layout_pages.h"
#include "platform/forms/control.h"

namespace documents {

class SheetItem : public forms::Control {
 public:
  using Control::Control;

  // On the sheet, in twips; and what is drawn there.
  [[nodiscard]] const page::Rectangle& place() const { return shown_.place; }
  [[nodiscard]] const page::Page& drawing() const { return shown_.drawing; }
  void show(PlacedItem item);

  // The user drags its corner to that place, in units of the sheet.
  forms::Event<int, int> Moved;
  // The user moves it with the keys, in steps to the right and down.
  forms::Event<int, int> Stepped;

 private:
  PlacedItem shown_;
};

}  // namespace documents
