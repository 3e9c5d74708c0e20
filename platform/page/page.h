// What is on a printed page: operations at places of their own, so that a page can be drawn on
// paper, into a file and on the screen alike.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "platform/richtext/paragraph.h"

namespace page {

// All measures are twips, from the top left corner of the sheet.
inline constexpr int twipsPerInch = 1440;
inline constexpr int twipsPerPoint = 20;
// Of pictures and of the windows, at 96 pixels to the inch.
inline constexpr int twipsPerPixel = 15;

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};
inline constexpr Size a4{11906, 16838};

using Font = richtext::CharFormat;

struct Rectangle {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Rectangle&) const = default;
};

// One line of text without control characters; y is the top of its font.
struct Text {
  int x = 0;
  int y = 0;
  std::string text;
  Font font;
  bool operator==(const Text&) const = default;
};

// A picture file that fills the rectangle; a file that is no picture leaves it empty.
struct Picture {
  Rectangle place;
  std::string path;
  bool operator==(const Picture&) const = default;
};

struct Line {
  int x1 = 0;
  int y1 = 0;
  int x2 = 0;
  int y2 = 0;
  bool operator==(const Line&) const = default;
};

// An outline.
struct Box {
  Rectangle place;
  bool operator==(const Box&) const = default;
};

using Operation = std::variant<Text, Picture, Line, Box>;

struct Page {
  std::vector<Operation> operations;
};

// A document that is ready to be drawn; it has at least one page.
struct Pages {
  Size size = a4;
  std::vector<Page> pages{1};
};

}  // namespace page
