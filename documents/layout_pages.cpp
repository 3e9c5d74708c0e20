#include "documents/layout_pages.h"

#include <algorithm>
#include <functional>

#include "documents/page_parts.h"
#include "documents/templates.h"
#include "platform/page/device.h"

namespace documents {

namespace {

// Of an item that has nothing to show yet, in units.
const int emptyWidth = unit::fromMillimetres(40);
const int emptyHeight = unit::fromMillimetres(15);

page::Size fitted(page::Size picture, page::Size sheet) {
  const double factor = std::min({1.0, static_cast<double>(sheet.width) / picture.width,
                                  static_cast<double>(sheet.height) / picture.height});
  return {std::max(1, static_cast<int>(picture.width * factor)),
          std::max(1, static_cast<int>(picture.height * factor))};
}

// One item with its content on a sheet, whatever it is drawn on.
class Item {
 public:
  Item(const page::Metrics& metrics, const LayoutItem& item, const std::string& content,
       page::Size sheet)
      : metrics_(metrics), item_(item), content_(content), sheet_(sheet) {
    place_ = {unit::twips(item.left), unit::twips(item.top), unit::twips(emptyWidth),
              unit::twips(emptyHeight)};
    measure();
  }

  [[nodiscard]] const page::Rectangle& place() const { return place_; }
  [[nodiscard]] bool isBody() const { return item_.kind == ItemKind::Body; }

  // With its corner there; a body asks `full` at the end of the sheet.
  void draw(page::Device& device, int x, int y, const std::function<bool()>& full) const {
    if (item_.kind == ItemKind::Picture) {
      device.paintPicture(content_, x, y, page::Size{place_.width, place_.height});
      return;
    }
    device.x = device.left = x;
    device.y = y;
    YaziciFontuAyarla(device, item_.font);
    if (item_.kind == ItemKind::Line) return device.print(content_);
    const int bottom = y + sheet_.height - place::textTop - place_.y;
    metniYaz(device, richtext::Document::fromText(content_, device.font), {room(), bottom}, full);
  }

 private:
  // A line keeps from the edge of the sheet what printers cannot reach.
  [[nodiscard]] int room() const { return sheet_.width - place::textTop - place_.x; }

  void measure() {
    if (item_.kind == ItemKind::Picture) return measurePicture();
    page::Device pen(metrics_, sheet_);
    YaziciFontuAyarla(pen, item_.font);
    if (isBody()) return measureBody(pen);
    if (!content_.empty()) place_.width = pen.textWidth(content_);
    place_.height = pen.textHeight(content_);
    place_.x = std::max(0, std::min(place_.x, sheet_.width - place::textTop - place_.width));
  }

  void measurePicture() {
    const auto natural = metrics_.pictureSize(content_);
    if (!natural || natural->width <= 0 || natural->height <= 0) return;
    const page::Size size = fitted(*natural, sheet_);
    place_ = {std::min(place_.x, sheet_.width - size.width),
              std::min(place_.y, sheet_.height - size.height), size.width, size.height};
  }

  void measureBody(page::Device& pen) {
    place_.width = room();
    draw(pen, 0, 0, [] { return false; });
    place_.height = std::max(pen.y, pen.textHeight());
  }

  const page::Metrics& metrics_;
  const LayoutItem& item_;
  const std::string& content_;
  page::Size sheet_;
  page::Rectangle place_;
};

bool full() {
  return false;
}

// What is printed, in the order in which it is drawn; bodies are last.
std::vector<Item> printedItems(const page::Metrics& metrics, const PageLayout& layout,
                               ItemContents contents) {
  std::vector<Item> items;
  const auto add = [&](std::size_t item, ItemKind kind) {
    const LayoutItem& laid = layout.items()[item];
    if (laid.shown && laid.kind == kind)
      items.emplace_back(metrics, laid, contents[item], layout.sheet());
  };
  const std::size_t count = layout.items().size();
  for (std::size_t item = count; item-- > 0;) add(item, ItemKind::Picture);
  for (std::size_t item = 0; item < count; ++item) add(item, ItemKind::Line);
  for (std::size_t item = 0; item < count; ++item) add(item, ItemKind::Body);
  return items;
}

}  // namespace

PlacedItem yerlesenOge(const page::Metrics& metrics, const LayoutItem& item,
                       const std::string& content, page::Size sheet) {
  const Item drawn(metrics, item, content, sheet);
  page::Device device(metrics, sheet);
  drawn.draw(device, 0, 0, full);
  return {drawn.place(), device.endDocument().pages.front()};
}

page::Pages yerlesimSayfalari(const page::Metrics& metrics, const PageLayout& layout,
                              ItemContents contents) {
  const std::vector<Item> printed = printedItems(metrics, layout, contents);
  page::Device device(metrics, layout.sheet());
  const auto drawAround = [&] {
    for (const Item& item : printed)
      if (!item.isBody()) item.draw(device, item.place().x, item.place().y, full);
  };
  drawAround();
  for (const Item& item : printed) {
    if (!item.isBody()) continue;
    item.draw(device, item.place().x, item.place().y, [&] {
      device.newPage();
      drawAround();
      device.left = device.x = item.place().x;
      device.y = item.place().y;
      return true;
    });
  }
  return device.endDocument();
}

}  // namespace documents
