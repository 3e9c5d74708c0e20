#include "platform/text/nearest.h"

#include <unicode/normalizer2.h>
#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "platform/text/codepage.h"
#include "platform/text/utf8.h"

namespace text {
namespace {

// Signs that have no decomposition, or one that a reader would not take for them.
constexpr auto known = std::to_array<std::pair<char32_t, const char*>>({
    {U'Ð', "D"},      {U'Ý', "Y"},    {U'Þ', "Th"},    {U'ð', "d"},      {U'ý', "y"},
    {U'þ', "th"},     {U'Ə', "E"},    {U'ə', "e"},     {U'Δ', "delta"},  {U'α', "alfa"},
    {U'β', "beta"},   {U'γ', "gama"}, {U'δ', "delta"}, {U'μ', "\u00B5"}, {U'‐', "-"},
    {U'\u2011', "-"}, {U'‒', "-"},    {U'―', "-"},     {U'′', "'"},      {U'″', "\""},
    {U'⁄', "/"},      {U'Ω', "ohm"},  {U'←', "<-"},    {U'↑', "^"},      {U'→', "->"},
    {U'↓', "v"},      {U'↔', "<->"},  {U'⇐', "<="},    {U'⇒', "=>"},     {U'−', "-"},
    {U'∙', "\u00B7"}, {U'√', "V"},    {U'≈', "~"},     {U'≠', "<>"},     {U'≤', "<="},
    {U'≥', ">="},     {U'⩽', "<="},   {U'⩾', ">="},
});

bool isKept(std::string_view text) {
  return fromTurkishCodePage(toTurkishCodePage(text)) == text;
}

// One letter of whatever script in plain Latin ones.
std::string latin(std::string_view character) {
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<icu::Transliterator> rules(icu::Transliterator::createInstance(
      "Any-Latin; NFKD; [:Nonspacing Mark:] Remove; Latin-ASCII", UTRANS_FORWARD, error));
  if (U_FAILURE(error)) return {};
  icu::UnicodeString letters = icu::UnicodeString::fromUTF8(character);
  rules->transliterate(letters);
  std::string result;
  letters.toUTF8String(result);
  return result;
}

std::string nearestOf(char32_t code, std::string_view character) {
  const auto* const row = std::ranges::find(known, code, &std::pair<char32_t, const char*>::first);
  if (row != known.end()) return row->second;
  const auto point = static_cast<UChar32>(code);
  if (u_hasBinaryProperty(point, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0 ||
      u_charType(point) == U_NON_SPACING_MARK)
    return {};
  const std::string letters = latin(character);
  return letters.empty() || !isKept(letters) ? "?" : letters;
}

// A letter and the mark behind it are one character where Unicode has it.
std::string composed(std::string_view text) {
  UErrorCode error = U_ZERO_ERROR;
  const icu::Normalizer2* const rules = icu::Normalizer2::getNFCInstance(error);
  if (U_FAILURE(error)) return std::string(text);
  std::string result;
  rules
      ->normalize(icu::UnicodeString::fromUTF8(
                      icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size()))),
                  error)
      .toUTF8String(result);
  return result;
}

// Calls with every character of the text, and with what stands for it, which may be itself.
template <class Visit>
void visitNearest(std::string_view text, const Visit& visit) {
  const std::string whole = composed(text);
  for (std::size_t at = 0; at < whole.size();) {
    const std::size_t start = at;
    const char32_t code = nextCharacter(whole, at);
    const std::string character = whole.substr(start, at - start);
    visit(character, isKept(character) ? character : nearestOf(code, character));
  }
}

}  // namespace

std::string nearestTurkish(std::string_view text) {
  if (isKept(text)) return std::string(text);
  std::string result;
  visitNearest(text, [&](const std::string&, const std::string& nearest) { result += nearest; });
  return result;
}

std::vector<Substitute> substitutesIn(std::string_view text) {
  std::vector<Substitute> found;
  if (isKept(text)) return found;
  visitNearest(text, [&](const std::string& character, const std::string& nearest) {
    const Substitute each{character, nearest};
    if (character == nearest || nearest.empty()) return;
    if (std::ranges::find(found, each) == found.end()) found.push_back(each);
  });
  return found;
}

}  // namespace text
