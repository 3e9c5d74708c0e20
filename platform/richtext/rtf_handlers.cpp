// What the words of a rich-text file do to the state of the reading.
#include <algorithm>
#include <utility>

#include "platform/richtext/rtf_interpreter.h"

namespace richtext {
namespace {

constexpr int kLargestSize = 3276;     // half points
constexpr int kLargestIndent = 31680;  // twips, 22 inches
constexpr int kLongestFallback = 64;

int indentOf(int twips) {
  return std::clamp(twips, -kLargestIndent, kLargestIndent);
}

bool isHighSurrogate(int unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLowSurrogate(int unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

void RtfInterpreter::onTarget(const Call& call) {
  const auto wanted = static_cast<Target>(call.value);
  // What stands in a text box within a footnote is the footnote's.
  if (state_.target == Target::Aside && wanted == Target::Body) return;
  state_.target = wanted;
  if (state_.target == Target::ListText) listText_.clear();
}

void RtfInterpreter::onCharacter(const Call& call) {
  addCharacter(static_cast<char32_t>(call.value));
}

void RtfInterpreter::onParagraph(const Call& /*call*/) {
  if (state_.target == Target::Aside) return addText(" ");
  if (inBody() && !state_.hidden) endParagraph();
}

void RtfInterpreter::onBreak(const Call& /*call*/) {
  if (inBody() && builder_.inParagraph()) endParagraph();
}

void RtfInterpreter::onCell(const Call& /*call*/) {
  if (state_.target == Target::Aside) return addText(" ");
  if (inBody()) builder_.endCell(format(), state_.paragraph);
}

void RtfInterpreter::onRow(const Call& /*call*/) {
  if (inBody()) builder_.endRow(format(), state_.paragraph);
}

// Numbers are signed 16-bit units; some writers put a whole code point there instead.
void RtfInterpreter::onUnicode(const Call& call) {
  fallbackLeft_ = state_.fallbackLength;
  const int unit = call.number() < 0 ? call.number() & 0xFFFF : call.number();
  if (isHighSurrogate(unit)) {
    highSurrogate_ = static_cast<char32_t>(unit);
  } else if (isLowSurrogate(unit) && highSurrogate_ != 0) {
    const char32_t high = std::exchange(highSurrogate_, 0) - 0xD800;
    addCharacter(0x10000 + (high << 10U) + static_cast<char32_t>(unit) - 0xDC00);
  } else {
    addCharacter(static_cast<char32_t>(unit));
  }
}

void RtfInterpreter::onFallbackLength(const Call& call) {
  state_.fallbackLength = std::clamp(call.parameter.value_or(1), 0, kLongestFallback);
}

void RtfInterpreter::onBold(const Call& call) {
  formatting().bold = call.on();
}
void RtfInterpreter::onItalic(const Call& call) {
  formatting().italic = call.on();
}
void RtfInterpreter::onUnderline(const Call& call) {
  formatting().underline = call.on();
}
void RtfInterpreter::onNoUnderline(const Call& /*call*/) {
  formatting().underline = false;
}
void RtfInterpreter::onStrike(const Call& call) {
  formatting().strike = call.on();
}
void RtfInterpreter::onHidden(const Call& call) {
  state_.hidden = call.on();
}
void RtfInterpreter::onScript(const Call& call) {
  formatting().script = call.on() ? static_cast<Script>(call.value) : Script::Normal;
}
// Half points above or below the line; how many is not kept.
void RtfInterpreter::onRaise(const Call& call) {
  const bool moved = call.parameter.value_or(1) > 0;
  formatting().script = moved ? static_cast<Script>(call.value) : Script::Normal;
}
void RtfInterpreter::onColour(const Call& call) {
  formatting().colour = call.number();
}

void RtfInterpreter::onFont(const Call& call) {
  if (state_.target == Target::Fonts) return fonts_.begin(call.number());
  formatting().font = std::max(call.number(), 0);
}

void RtfInterpreter::onSize(const Call& call) {
  if (call.number() > 0) formatting().halfPoints = std::min(call.number(), kLargestSize);
}

void RtfInterpreter::onPlain(const Call& /*call*/) {
  State plain;
  plain.target = state_.target;
  plain.fallbackLength = state_.fallbackLength;
  plain.paragraph = state_.paragraph;
  formatting() = plain;
}

void RtfInterpreter::onParagraphDefaults(const Call& /*call*/) {
  state_.paragraph = {};
}

void RtfInterpreter::onAlignment(const Call& call) {
  state_.paragraph.alignment = static_cast<Alignment>(call.value);
}

void RtfInterpreter::onLeftIndent(const Call& call) {
  state_.paragraph.leftIndent = indentOf(call.number());
}

void RtfInterpreter::onRightIndent(const Call& call) {
  state_.paragraph.rightIndent = indentOf(call.number());
}

void RtfInterpreter::onFirstIndent(const Call& call) {
  state_.paragraph.firstIndent = indentOf(call.number());
}

void RtfInterpreter::onDocumentCodePage(const Call& call) {
  const int page = call.value != 0 ? call.value : call.number();
  if (page <= 0) return;
  documentCodePage_ = page;
  pageDeclared_ = true;
}

void RtfInterpreter::onDefaultFont(const Call& call) {
  defaultFont_ = call.number();
  formatKnown_ = false;
}

void RtfInterpreter::onFontCharset(const Call& call) {
  if (state_.target == Target::Fonts) fonts_.setCharset(call.number());
}

void RtfInterpreter::onFontCodePage(const Call& call) {
  if (state_.target == Target::Fonts) fonts_.setCodePage(call.number());
}

void RtfInterpreter::onColourPart(const Call& call) {
  if (state_.target == Target::Colours)
    colours_.set(static_cast<RtfColours::Part>(call.value), call.number());
}

RtfInterpreter::State& RtfInterpreter::formatting() {
  formatKnown_ = false;
  return state_;
}

}  // namespace richtext
