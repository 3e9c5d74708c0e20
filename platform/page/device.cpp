#include "platform/page/device.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace page {

namespace {

// Calls with each line of the text, and whether another one follows.
void eachLine(std::string_view text, const std::function<void(std::string_view, bool)>& visit) {
  for (;;) {
    const std::size_t end = text.find_first_of("\r\n");
    visit(text.substr(0, end), end != text.npos);
    if (end == text.npos) return;
    text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
  }
}

}  // namespace

Device::Device(const Metrics& metrics, Size size) : metrics_(metrics) {
  pages_.size = size;
}

int Device::textWidth(std::string_view text) const {
  int widest = 0;
  eachLine(text, [&](std::string_view line, bool) {
    widest = std::max(widest, metrics_.width(line, font));
  });
  return widest;
}

int Device::textHeight(std::string_view text) const {
  int lines = 0;
  eachLine(text, [&](std::string_view, bool) { ++lines; });
  return lines * metrics_.height(font).line;
}

void Device::print(std::string_view text, Then then) {
  eachLine(text, [&](std::string_view line, bool more) {
    if (!line.empty()) {
      add(Text{.x = x, .y = y, .text = std::string(line), .font = font});
      x += metrics_.width(line, font);
    }
    if (more || then == Then::NextLine) nextLine();
  });
}

void Device::nextLine() {
  x = left;
  y += metrics_.height(font).line;
}

bool Device::paintPicture(std::string_view path, int atX, int atY, std::optional<Size> size) {
  const std::optional<Size> natural = metrics_.pictureSize(path);
  if (!natural) return false;
  const Size painted = size.value_or(*natural);
  add(Picture{.place = {atX, atY, painted.width, painted.height}, .path = std::string(path)});
  return true;
}

void Device::line(int x1, int y1, int x2, int y2) {
  add(Line{x1, y1, x2, y2});
}

void Device::box(const Rectangle& place) {
  add(Box{place});
}

void Device::newPage() {
  pages_.pages.emplace_back();
  x = left;
  y = 0;
}

Pages Device::endDocument() {
  x = left;
  y = 0;
  const Size size = pages_.size;
  return std::exchange(pages_, Pages{.size = size});
}

}  // namespace page
