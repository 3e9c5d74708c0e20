// What rich text is made of: runs of one character format, gathered in paragraphs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace richtext {

// 0xRRGGBB; none is the automatic colour of the surface that the text is drawn on.
using Colour = std::optional<std::uint32_t>;

enum class Script { Normal, Super, Sub };

struct CharFormat {
  std::string font = "MS Sans Serif";
  int halfPoints = 17;  // size in half points, 1 to 3276
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  Colour colour;
  Script script = Script::Normal;

  bool operator==(const CharFormat&) const = default;
};

// The numbers are the ones that stored settings and toolbars use.
enum class Alignment { Left = 0, Right = 1, Centre = 2 };

enum class ListMark { None, Bullet };

// Indents are twips; firstIndent is relative to leftIndent and may be negative.
struct ParagraphFormat {
  Alignment alignment = Alignment::Left;
  int leftIndent = 0;
  int rightIndent = 0;
  int firstIndent = 0;
  ListMark mark = ListMark::None;

  bool operator==(const ParagraphFormat&) const = default;
};

struct Run {
  std::string text;  // UTF-8, no control character but the tab
  CharFormat format;

  bool operator==(const Run&) const = default;
};

struct Paragraph {
  std::vector<Run> runs;
  ParagraphFormat format;

  bool operator==(const Paragraph&) const = default;
};

// Brings a paragraph into its one normal shape: no empty run, neighbours differ in format. A
// paragraph without text keeps one empty run, whose format is what is typed there next.
void normalise(Paragraph& paragraph);

// Cuts a paragraph behind its first `characters` characters and returns the runs of the rest.
// Either side may be left without any run.
std::vector<Run> splitRuns(Paragraph& paragraph, std::size_t characters);

}  // namespace richtext
