#include "platform/dao/dialect.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/dao/catalogue.h"
#include "platform/text/fold.h"

namespace dao {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// After these words, and after a comma, an opening parenthesis or a point, a quoted text is a name.
constexpr std::array<std::string_view, 16> kBeforeNames{
    "from",  "join", "update", "into", "by", "select", "distinct", "set",
    "where", "and",  "or",     "not",  "on", ",",      "(",        "."};

bool isWordPart(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte >= 0x80 || (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') ||
         (byte >= 'A' && byte <= 'Z') || byte == '_';
}

// The end of a quoted piece that begins at `start`; a doubled quote is part of it.
std::size_t quotedEnd(std::string_view text, std::size_t start) {
  const char close = text[start] == '[' ? ']' : text[start];
  for (std::size_t at = start + 1; at < text.size(); ++at) {
    if (text[at] != close) continue;
    if (close == ']' || at + 1 >= text.size() || text[at + 1] != close) return at + 1;
    ++at;
  }
  return text.size();
}

std::size_t tokenEnd(std::string_view text, std::size_t start) {
  const char first = text[start];
  if (first == '\'' || first == '"' || first == '[') return quotedEnd(text, start);
  if (!isWordPart(first)) return start + 1;
  return static_cast<std::size_t>(std::ranges::find_if_not(text.substr(start), isWordPart) -
                                  text.begin());
}

std::string literal(std::string_view doubleQuoted) {
  std::string text = "'";
  const std::string_view body = doubleQuoted.substr(1, doubleQuoted.size() - 2);
  for (std::size_t at = 0; at < body.size(); ++at) {
    if (body[at] == '"' && at + 1 < body.size() && body[at + 1] == '"') ++at;
    text.append(body[at] == '\'' ? 2 : 1, body[at]);
  }
  return text += '\'';
}

bool hasClosingQuote(std::string_view token) {
  return token.size() > 1 && token.back() == '"';
}

// Follows a statement token by token, so far as it takes to tell names from values.
class Reader {
 public:
  bool expectsName() const {
    if (inList_) return false;
    return std::ranges::any_of(kBeforeNames,
                               [&](auto word) { return text::equalsNoCase(word, previous_); });
  }

  void pass(std::string_view token) {
    if (token == "(")
      inList_ = text::equalsNoCase(previous_, "in") || text::equalsNoCase(previous_, "values");
    if (token == ")") inList_ = false;
    if (text::equalsNoCase(token, "between")) between_ = true;
    // The "and" of a "between" is followed by a value.
    const bool bound = between_ && text::equalsNoCase(token, "and");
    if (bound) between_ = false;
    previous_ = bound ? "between" : token;
  }

 private:
  std::string_view previous_;
  bool inList_ = false;
  bool between_ = false;
};

}  // namespace

bool isSelect(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  constexpr std::string_view kSelect = "select";
  const bool ends = text.size() > kSelect.size() && !isWordPart(text[kSelect.size()]);
  return ends && text::equalsNoCase(text.substr(0, kSelect.size()), kSelect);
}

std::string translated(std::string_view text) {
  std::string result;
  Reader reader;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = tokenEnd(text, at);
    const std::string_view token = text.substr(at, end - at);
    const std::size_t next = std::min(text.find_first_not_of(kBlanks, end), text.size());
    if (hasClosingQuote(token) && token.front() == '"' && !reader.expectsName()) {
      result += literal(token);
    } else if (text::equalsNoCase(token, "left") && text.substr(next, 1) == "(") {
      result += "\"left\"";
    } else {
      result += token;
    }
    result += text.substr(end, next - end);
    reader.pass(token);
    at = next;
  }
  return result;
}

}  // namespace dao
