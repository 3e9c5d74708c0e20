#include "platform/richtext/rtf_interpreter.h"

#include <algorithm>
#include <utility>

#include "platform/richtext/utf8.h"
#include "platform/text/utf8.h"

namespace richtext {
namespace {

using platform::Fault;
using platform::Status;

constexpr std::size_t kLongestListText = 64;
constexpr char32_t kReplacement = 0xFFFD;

// "o" is the bullet of the second level in some writers; other letters and digits are numbering.
bool isBullet(std::string_view listText) {
  const std::size_t end = listText.find_last_not_of(" \t");
  const std::u32string mark = toCodePoints(listText.substr(0, end + 1));
  if (mark.size() != 1) return false;
  return mark.front() >= 0x80 || mark.front() == U'o' || mark.front() == U'-' ||
         mark.front() == U'*';
}

}  // namespace

RtfInterpreter::RtfInterpreter(std::string_view bytes, const ReadLimits& limits)
    : lexer_(bytes), limits_(limits), rawUtf8_(!::text::isAscii(bytes) && isUtf8(bytes)) {}

platform::Result<Document> RtfInterpreter::run() {
  const RtfToken brace = lexer_.next();
  const RtfToken header = lexer_.next();
  if (brace.kind != RtfToken::Kind::Open || header.text != "rtf" ||
      header.kind != RtfToken::Kind::Word)
    return std::unexpected(Status(Fault::Damaged, "The text is not in the rich-text format."));
  open();
  while (!stack_.empty()) {
    const RtfToken token = lexer_.next();
    if (token.kind == RtfToken::Kind::End) break;
    step(token);
    if (overLimit())
      return std::unexpected(
          Status(Fault::Damaged, "The rich text is nested too deeply or too big."));
  }
  flushBytes();
  endAside();
  return builder_.finish(format());
}

void RtfInterpreter::step(const RtfToken& token) {
  using Kind = RtfToken::Kind;
  if (token.kind == Kind::Text) return rawText(token.text);
  if (token.kind == Kind::Symbol) return symbol(token.byte);
  const char byte = static_cast<char>(token.byte);
  if (token.kind == Kind::Byte) return plainBytes({&byte, 1});
  flushBytes();
  if (token.kind == Kind::Word) return word(token);
  fallbackLeft_ = 0;
  optional_ = false;
  if (token.kind == Kind::Open) return open();
  close();
}

void RtfInterpreter::open() {
  ++groups_;
  stack_.push_back(state_);
}

void RtfInterpreter::close() {
  const Target closed = state_.target;
  state_ = stack_.back();
  stack_.pop_back();
  formatKnown_ = false;
  if (closed == Target::ListText && state_.target != closed)
    endListText(std::exchange(listText_, {}));
  if (closed == Target::Aside && state_.target != closed) endAside();
}

void RtfInterpreter::word(const RtfToken& token) {
  const bool optional = std::exchange(optional_, false);
  if (state_.target == Target::Skipped) return;
  const Word* known = findWord(token.text);
  const bool isTarget = known && known->handler == &RtfInterpreter::onTarget;
  if (optional && !isTarget) {
    state_.target = Target::Skipped;
    return;
  }
  const bool isCharacter = known && known->handler == &RtfInterpreter::onCharacter;
  if (fallbackLeft_ > 0 && isCharacter) {
    --fallbackLeft_;
    return;
  }
  fallbackLeft_ = 0;
  if (known) (this->*known->handler)({token.parameter, known->value});
}

void RtfInterpreter::symbol(unsigned char character) {
  optional_ = character == '*';
  if (optional_) return;
  const bool escaped = character == '\\' || character == '{' || character == '}';
  const char byte = static_cast<char>(character);
  if (escaped) return plainBytes({&byte, 1});
  flushBytes();
  if (fallbackLeft_ > 0) {
    --fallbackLeft_;
    return;
  }
  if (character == '~') addCharacter(0xA0);
  if (character == '_') addCharacter(0x2011);
  if (character == '\t') addCharacter('\t');
  if (character == '\r' || character == '\n') onParagraph({});
}

void RtfInterpreter::rawText(std::string_view bytes) {
  const bool ascii = ::text::isAscii(bytes);
  if (rawUtf8_ && !pageDeclared_ && !ascii) return utf8Text(bytes);
  plainBytes(bytes);
  const bool endsRaw = !bytes.empty() && static_cast<unsigned char>(bytes.back()) >= 0x80;
  if (leadByteOpen_ && endsRaw && mayEndInSign(codePage())) plainBytes(lexer_.takeSignByte());
}

// What stands behind \u for other readers is counted in characters.
void RtfInterpreter::utf8Text(std::string_view text) {
  optional_ = false;
  if (state_.target == Target::Skipped) return;
  flushBytes();
  std::size_t at = 0;
  for (; fallbackLeft_ > 0 && at < text.size(); --fallbackLeft_)
    (void)::text::nextCharacter(text, at);
  if (at < text.size()) addText(text.substr(at));
}

// So that the braces and backslashes within characters are known from those of the format.
void RtfInterpreter::followLeadBytes(std::string_view bytes) {
  if (!leadByteOpen_ && ::text::isAscii(bytes)) return;
  const int page = codePage();
  for (const char byte : bytes) leadByteOpen_ = !leadByteOpen_ && isLeadByte(page, byte);
}

void RtfInterpreter::plainBytes(std::string_view bytes) {
  optional_ = false;
  if (state_.target == Target::Skipped) return;
  const std::size_t passed = std::min(bytes.size(), static_cast<std::size_t>(fallbackLeft_));
  fallbackLeft_ -= static_cast<int>(passed);
  bytes_ += bytes.substr(passed);
  followLeadBytes(bytes.substr(passed));
}

void RtfInterpreter::flushBytes() {
  if (bytes_.empty()) return;
  leadByteOpen_ = false;
  decoded_.clear();
  codePages_.decode(codePage(), bytes_, decoded_);
  bytes_.clear();
  addText(decoded_);
}

void RtfInterpreter::addCharacter(char32_t character) {
  std::string utf8;
  ::text::appendCharacter(utf8, character);
  addText(utf8);
}

void RtfInterpreter::addText(std::string_view utf8) {
  if (std::exchange(highSurrogate_, 0) != 0) addCharacter(kReplacement);
  switch (state_.target) {
    case Target::Body:
      if (!state_.hidden) builder_.addText(utf8, format(), state_.paragraph);
      break;
    case Target::Aside:
      if (!state_.hidden) asideText_ += utf8;
      break;
    case Target::Fonts:
      fonts_.addName(utf8);
      break;
    case Target::PlainFontName:
      fonts_.addPlainName(utf8);
      break;
    case Target::Colours:
      for (const char byte : utf8)
        if (byte == ';') colours_.endEntry();
      break;
    case Target::ListText:
      if (listText_.size() + utf8.size() <= kLongestListText) listText_ += utf8;
      break;
    case Target::Skipped:
      break;
  }
}

// A bullet is a mark of the paragraph; a number is text, because nothing here counts items.
void RtfInterpreter::endListText(const std::string& text) {
  if (!inBody() || state_.hidden) return;
  if (isBullet(text)) return builder_.markListItem();
  const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
  builder_.addText(std::string_view(text).substr(start), format(), state_.paragraph);
}

// In brackets at its place; its own formats are left out.
void RtfInterpreter::endAside() {
  std::string gathered = std::exchange(asideText_, {});
  std::ranges::replace(gathered, '\t', ' ');
  const std::string_view text = ::text::trimmed(gathered);
  const bool seen = inBody() || state_.target == Target::Aside;
  if (text.empty() || !seen || state_.hidden) return;
  builder_.addText("[" + std::string(text) + "]", format(), state_.paragraph);
}

// A symbol font's own name is in ordinary letters.
int RtfInterpreter::codePage() const {
  const bool naming = state_.target == Target::Fonts || state_.target == Target::PlainFontName;
  const int font = state_.font == kDefaultFont ? defaultFont_ : state_.font;
  const int page = naming ? fonts_.currentCodePage() : fonts_.codePage(font);
  return page == 0 || (naming && page == kSymbolCodePage) ? documentCodePage_ : page;
}

const CharFormat& RtfInterpreter::format() {
  if (formatKnown_) return format_;
  formatKnown_ = true;
  format_ = {};
  const std::string font = fonts_.name(state_.font == kDefaultFont ? defaultFont_ : state_.font);
  if (!font.empty()) format_.font = font;
  format_.halfPoints = state_.halfPoints;
  format_.bold = state_.bold;
  format_.italic = state_.italic;
  format_.underline = state_.underline;
  format_.strike = state_.strike;
  format_.colour = colours_.at(state_.colour);
  format_.script = state_.script;
  return format_;
}

bool RtfInterpreter::overLimit() const {
  return stack_.size() > limits_.depth || groups_ > limits_.groups ||
         builder_.textBytes() + bytes_.size() + asideText_.size() > limits_.textBytes ||
         builder_.pieces() > limits_.pieces;
}

void RtfInterpreter::endParagraph() {
  builder_.endParagraph(format(), state_.paragraph);
}

}  // namespace richtext
