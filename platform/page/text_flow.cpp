#include "platform/page/text_flow.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "platform/text/utf8.h"

namespace page {

namespace {

constexpr int tabStop = twipsPerInch / 2;
// More bytes than a line usually has.
constexpr std::size_t atOnce = 400;

struct WordPiece {
  std::string text;
  Font font;
  int width = 0;
};

// The font that a raised or lowered text belongs to.
Font onTheLine(Font font) {
  font.script = richtext::Script::Normal;
  return font;
}

// From the base line of the line to that of the piece, downwards.
int lowered(const Metrics& metrics, const Font& font) {
  if (font.script == richtext::Script::Normal) return 0;
  const int ascent = metrics.height(onTheLine(font)).ascent;
  return font.script == richtext::Script::Super ? -ascent / 3 : ascent / 8;
}

bool isEmpty(const richtext::Paragraph& paragraph) {
  return paragraph.runs.size() == 1 && paragraph.runs.front().text.empty();
}

// Gathers words into lines. A word may change its font on the way, so that it is held back until
// its end is known.
class LineBreaker {
 public:
  LineBreaker(const Metrics& metrics, int width, const std::function<bool(const FlowLine&)>& visit)
      : metrics_(metrics), width_(width), visit_(visit) {}

  // False when nobody wants more lines.
  bool paragraph(const richtext::Paragraph& paragraph) {
    for (const richtext::Run& run : paragraph.runs) {
      addRun(run);
      if (stopped_) return false;
    }
    endWord();
    // A line without text is as high as what is typed there would be.
    if (line_.pieces.empty() && !paragraph.runs.empty()) raise(paragraph.runs.back().format);
    endLine();
    return !stopped_;
  }

 private:
  void addRun(const richtext::Run& run) {
    std::string_view rest = run.text;
    manyMayFit_ = true;
    while (!rest.empty() && !stopped_) {
      if (std::exchange(manyMayFit_, false)) rest.remove_prefix(addWords(rest, run.format));
      const std::string_view word = rest.substr(0, rest.find_first_of(" \t"));
      if (!word.empty()) addToWord(word, run.format);
      rest.remove_prefix(word.size());
      if (rest.empty()) return;
      endWord();
      rest.remove_prefix(rest.front() == '\t' ? addTab() : addBlanks(rest, run.format));
    }
  }

  // As many words as are sure to fit, measured as one text: shaping letters is slow, and most lines
  // take most of their words here.
  std::size_t addWords(std::string_view text, const Font& font) {
    text = text.substr(0, std::min(text.find('\t'), atOnce));
    for (int attempt = 0; attempt < 2; ++attempt) {
      text = text.substr(0, text.find_last_of(' ') + 1);
      if (text.empty()) return 0;
      const int wide = metrics_.width(text, font);
      const int room = width_ - x_ - wordWidth_;
      if (wide <= room) {
        endWord();
        place(std::string(text), wide, font);
        return text.size();
      }
      text = text.substr(0, text.size() * static_cast<std::size_t>(std::max(room, 0)) /
                                static_cast<std::size_t>(std::max(wide, 1)));
    }
    return 0;
  }

  void addToWord(std::string_view text, const Font& font) {
    const int wide = metrics_.width(text, font);
    word_.push_back({.text = std::string(text), .font = font, .width = wide});
    wordWidth_ += wide;
  }

  std::size_t addTab() {
    x_ = (x_ / tabStop + 1) * tabStop;
    apart_ = true;
    return 1;
  }

  std::size_t addBlanks(std::string_view text, const Font& font) {
    const std::size_t blanks = std::min(text.find_first_not_of(' '), text.size());
    const std::string gap(blanks, ' ');
    place(gap, metrics_.width(gap, font), font);
    return blanks;
  }

  void endWord() {
    if (x_ + wordWidth_ > width_ && x_ > 0) endLine();
    for (WordPiece& piece : std::exchange(word_, {})) {
      if (wordWidth_ > width_) {
        placeInParts(piece.text, piece.font);
      } else {
        place(std::move(piece.text), piece.width, piece.font);
      }
    }
    wordWidth_ = 0;
  }

  // Character by character, for what no line can hold.
  void placeInParts(std::string_view text, const Font& font) {
    for (std::size_t at = 0; at < text.size() && !stopped_;) {
      const std::size_t begin = at;
      (void)text::nextCharacter(text, at);
      const std::string_view character = text.substr(begin, at - begin);
      const int wide = metrics_.width(character, font);
      if (x_ > 0 && x_ + wide > width_) endLine();
      place(std::string(character), wide, font);
    }
  }

  // Neighbours of one font become one piece, which prints faster and can be searched for as a
  // whole.
  void place(std::string text, int width, const Font& font) {
    raise(font);
    if (!apart_ && !line_.pieces.empty() && line_.pieces.back().font == font) {
      line_.pieces.back().text += text;
    } else {
      line_.pieces.push_back({.x = x_, .text = std::move(text), .font = font});
    }
    apart_ = false;
    x_ += width;
  }

  void raise(const Font& font) {
    const FontHeight height = metrics_.height(onTheLine(font));
    line_.height.ascent = std::max(line_.height.ascent, height.ascent);
    line_.height.line = std::max(line_.height.line, height.line);
  }

  void endLine() {
    stopped_ = stopped_ || !visit_(line_);
    line_ = {};
    x_ = 0;
    apart_ = false;
    manyMayFit_ = true;
  }

  const Metrics& metrics_;
  const int width_;
  const std::function<bool(const FlowLine&)>& visit_;
  FlowLine line_;
  int x_ = 0;
  std::vector<WordPiece> word_;
  int wordWidth_ = 0;
  bool apart_ = false;      // a tab parts what follows from what stands before
  bool manyMayFit_ = true;  // a run or a line begins
  bool stopped_ = false;
};

}  // namespace

void eachLine(const Metrics& metrics, const richtext::Document& text, int width,
              const std::function<bool(const FlowLine&)>& visit) {
  LineBreaker breaker(metrics, width, visit);
  const std::span<const richtext::Paragraph> all(text.paragraphs());
  // Behind the last line end there is no line.
  for (const richtext::Paragraph& paragraph :
       isEmpty(all.back()) ? all.first(all.size() - 1) : all) {
    if (!breaker.paragraph(paragraph)) return;
  }
}

void printLine(Device& device, const FlowLine& line) {
  const int top = device.y;
  for (const FlowPiece& piece : line.pieces) {
    device.font = piece.font;
    device.x = device.left + piece.x;
    device.y = top + line.height.ascent - device.metrics().height(piece.font).ascent +
               lowered(device.metrics(), piece.font);
    device.print(piece.text, Then::StayOnLine);
  }
  device.x = device.left;
  device.y = top + line.height.line;
}

}  // namespace page
