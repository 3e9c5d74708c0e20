// Follows the words of a rich-text file and builds its document.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/richtext/code_pages.h"
#include "platform/richtext/document_builder.h"
#include "platform/richtext/rtf_lexer.h"
#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/rtf_tables.h"

namespace richtext {

// One object reads one file.
class RtfInterpreter {
 public:
  RtfInterpreter(std::string_view bytes, const ReadLimits& limits);

  platform::Result<Document> run();

 private:
  // An aside is text that stands beside the body: a footnote, a text box, what an object shows.
  enum class Target { Body, Aside, Skipped, Fonts, PlainFontName, Colours, ListText };

  // What a group inherits from the group around it and gives back at its end.
  struct State {
    Target target = Target::Body;
    int font = kDefaultFont;
    int halfPoints = 24;
    int colour = kAutomatic;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    bool hidden = false;
    Script script = Script::Normal;
    int fallbackLength = 1;  // characters that stand behind each \u for readers without Unicode
    ParagraphFormat paragraph;
  };

  // What a word does: `value` is the constant of its line in the table of words.
  struct Call {
    std::optional<int> parameter;
    int value;

    [[nodiscard]] bool on() const { return parameter.value_or(1) != 0; }
    [[nodiscard]] int number() const { return parameter.value_or(0); }
  };
  struct Word {
    std::string_view name;
    void (RtfInterpreter::*handler)(const Call&);
    int value = 0;
  };
  static const Word* findWord(std::string_view name);

  static constexpr int kDefaultFont = -1;
  static constexpr int kAutomatic = -1;

  // Tokens
  void step(const RtfToken& token);
  void open();
  void close();
  void word(const RtfToken& token);
  void symbol(unsigned char character);
  void rawText(std::string_view bytes);
  void utf8Text(std::string_view text);
  void plainBytes(std::string_view bytes);
  void followLeadBytes(std::string_view bytes);
  void flushBytes();
  void addCharacter(char32_t character);
  void addText(std::string_view utf8);
  void endListText(const std::string& text);
  void endAside();
  [[nodiscard]] bool inBody() const { return state_.target == Target::Body; }
  [[nodiscard]] int codePage() const;
  [[nodiscard]] const CharFormat& format();
  State& formatting();  // the state, about to change in what format() gives
  [[nodiscard]] bool overLimit() const;
  void endParagraph();

  // Handlers of words
  void onTarget(const Call& call);
  void onCharacter(const Call& call);
  void onParagraph(const Call& call);
  void onBreak(const Call& call);
  void onCell(const Call& call);
  void onRow(const Call& call);
  void onUnicode(const Call& call);
  void onFallbackLength(const Call& call);
  void onBold(const Call& call);
  void onItalic(const Call& call);
  void onUnderline(const Call& call);
  void onNoUnderline(const Call& call);
  void onStrike(const Call& call);
  void onHidden(const Call& call);
  void onScript(const Call& call);
  void onRaise(const Call& call);
  void onFont(const Call& call);
  void onSize(const Call& call);
  void onColour(const Call& call);
  void onPlain(const Call& call);
  void onParagraphDefaults(const Call& call);
  void onAlignment(const Call& call);
  void onLeftIndent(const Call& call);
  void onRightIndent(const Call& call);
  void onFirstIndent(const Call& call);
  void onDocumentCodePage(const Call& call);
  void onDefaultFont(const Call& call);
  void onFontCharset(const Call& call);
  void onFontCodePage(const Call& call);
  void onColourPart(const Call& call);

  RtfLexer lexer_;
  ReadLimits limits_;
  CodePages codePages_;
  RtfFonts fonts_;
  RtfColours colours_;
  DocumentBuilder builder_;
  State state_;
  std::vector<State> stack_;
  std::size_t groups_ = 0;
  int documentCodePage_ = kTurkishCodePage;
  bool rawUtf8_;  // the file has bytes beyond ASCII, and all of it is UTF-8
  bool pageDeclared_ = false;
  bool leadByteOpen_ = false;  // the plain bytes end within a character of two bytes
  int defaultFont_ = 0;
  bool optional_ = false;       // \* came just before
  int fallbackLeft_ = 0;        // characters still to pass over behind \u
  char32_t highSurrogate_ = 0;  // waits for its other half
  std::string bytes_;           // plain bytes not yet decoded: a character may span several tokens
  std::string decoded_;
  std::string listText_;
  std::string asideText_;
  CharFormat format_;  // the state's, while formatKnown_
  bool formatKnown_ = false;
};

}  // namespace richtext
