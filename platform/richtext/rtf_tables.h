// The font and colour tables at the head of a rich-text file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/richtext/paragraph.h"

namespace richtext {

// Fonts under the numbers that the file gives them. Entries beyond 4096 and names beyond 63 bytes
// are not kept.
class RtfFonts {
 public:
  // The entry that the calls below describe, and text without one of its own goes to.
  void begin(int number);
  void setCharset(int charset);
  void setCodePage(int codePage);
  // Pieces of the entry's name, up to a semicolon.
  void addName(std::string_view text) { addTo(&Entry::name, text); }
  // The name without a script's ending ("Arial" of "Arial TUR"); it goes before the other.
  void addPlainName(std::string_view text) { addTo(&Entry::plainName, text); }

  // Empty for a font that is not there.
  [[nodiscard]] std::string name(int number) const;
  // 0 for a font that follows the document's code page.
  [[nodiscard]] int codePage(int number) const;
  [[nodiscard]] int currentCodePage() const { return current_ ? current_->codePage : 0; }

 private:
  struct Entry {
    std::string name;
    std::string plainName;
    int codePage = 0;
    bool named = false;
    bool plainNamed = false;
  };

  void addTo(std::string Entry::*name, std::string_view text);

  std::unordered_map<int, Entry> entries_;
  Entry* current_ = nullptr;
};

// The first 4096 colours. An entry without any component is the automatic colour.
class RtfColours {
 public:
  enum class Part { Red = 16, Green = 8, Blue = 0 };  // bits to shift

  void set(Part part, int value);
  void endEntry();
  // None for the automatic colour and for numbers that are not there.
  [[nodiscard]] Colour at(int number) const;

 private:
  std::vector<Colour> colours_;
  Colour entry_;
};

}  // namespace richtext
