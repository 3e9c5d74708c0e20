// A rich text broken into the lines of a page.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/page/device.h"
#include "platform/richtext/document.h"

namespace page {

// Texts of one font each, at their distance from the left edge.
struct FlowPiece {
  int x = 0;
  std::string text;
  Font font;
};

struct FlowLine {
  std::vector<FlowPiece> pieces;
  FontHeight height;  // of the tallest font on the line
};

// Calls with line after line, each at most `width` twips wide, until `visit` answers false. Lines
// break between words; a word that is wider than a line breaks where it must. Blanks at a line's
// end may reach beyond it. Tabs stand at every half inch. A line end at the end of the text does
// not begin another line.
void eachLine(const Metrics& metrics, const richtext::Document& text, int width,
              const std::function<bool(const FlowLine&)>& visit);

// Prints the line from the left edge on, its fonts on one base line but for raised and lowered
// ones, and moves below it.
void printLine(Device& device, const FlowLine& line);

}  // namespace page
