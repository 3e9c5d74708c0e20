#include "platform/richtext/document.h"

#include <algorithm>
#include <utility>

#include "platform/richtext/utf8.h"

namespace richtext {
namespace {

std::size_t lengthOf(const Paragraph& paragraph) {
  std::size_t length = 0;
  for (const Run& run : paragraph.runs) length += characterCount(run.text);
  return length;
}

// Cuts one line off the front; a CRLF counts as one line end.
std::string_view takeLine(std::string_view& text, bool& ended) {
  const std::size_t end = std::min(text.find_first_of("\n\v\f\r"), text.size());
  const std::string_view line = text.substr(0, end);
  ended = end < text.size();
  const std::size_t mark = text.substr(end).starts_with("\r\n") ? 2 : 1;
  text.remove_prefix(std::min(end + mark, text.size()));
  return line;
}

}  // namespace

Document::Document() : paragraphs_(1), lengths_(1, 0) {
  normalise(paragraphs_.front());
}

Document::Document(std::vector<Paragraph> paragraphs) : paragraphs_(std::move(paragraphs)) {
  if (paragraphs_.empty()) paragraphs_.emplace_back();
  for (Paragraph& paragraph : paragraphs_) {
    for (Run& run : paragraph.runs) run.text = cleaned(run.text);
    normalise(paragraph);
  }
  measure();
}

Document Document::fromText(std::string_view text, const CharFormat& format,
                            const ParagraphFormat& paragraphFormat) {
  std::vector<Paragraph> paragraphs;
  bool ended = true;
  while (ended) {
    const std::string_view line = takeLine(text, ended);
    paragraphs.push_back({{{std::string(line), format}}, paragraphFormat});
  }
  return Document(std::move(paragraphs));
}

std::size_t Document::length() const {
  std::size_t length = lengths_.size() - 1;
  for (const std::size_t characters : lengths_) length += characters;
  return length;
}

std::string Document::plainText() const {
  std::string text;
  for (const Paragraph& paragraph : paragraphs_) {
    if (&paragraph != &paragraphs_.front()) text += '\n';
    for (const Run& run : paragraph.runs) text += run.text;
  }
  return text;
}

std::string Document::plainText(Range range) const {
  return slice(range).plainText();
}

const CharFormat& Document::formatAt(std::size_t position) const {
  const Place place = placeOf(position);
  const std::vector<Run>& runs = paragraphs_[place.paragraph].runs;
  std::size_t end = 0;
  for (const Run& run : runs) {
    end += characterCount(run.text);
    if (place.offset < end) return run.format;
  }
  return runs.back().format;
}

const ParagraphFormat& Document::paragraphFormatAt(std::size_t position) const {
  return paragraphs_[placeOf(position).paragraph].format;
}

bool Document::startsParagraph(std::size_t position) const {
  return placeOf(position).offset == 0;
}

void Document::visitFormats(Range range,
                            const std::function<void(const CharFormat&)>& visit) const {
  range = clamped(range);
  const Place begin = placeOf(range.begin);
  std::size_t position = range.begin - begin.offset;
  bool visited = false;
  for (std::size_t i = begin.paragraph; i < paragraphs_.size() && position < range.end; ++i) {
    for (const Run& run : paragraphs_[i].runs) {
      const std::size_t start = position;
      position += characterCount(run.text);
      const bool touched = run.text.empty() || (position > range.begin && start < range.end);
      if (touched) visit(run.format);
      visited = visited || touched;
    }
    ++position;
  }
  if (!visited) visit(formatAt(range.begin));
}

void Document::visitParagraphs(Range range,
                               const std::function<void(const ParagraphFormat&)>& visit) const {
  range = clamped(range);
  const std::size_t last = placeOf(range.end).paragraph;
  for (std::size_t i = placeOf(range.begin).paragraph; i <= last; ++i) visit(paragraphs_[i].format);
}

void Document::insertText(std::size_t position, std::string_view text, const CharFormat& format) {
  replaceText({position, position}, text, format);
}

void Document::replaceText(Range range, std::string_view text, const CharFormat& format) {
  splice(range, fitted(range, typed(range, text, format)));
}

void Document::erase(Range range) {
  replaceText(range, "", formatAt(range.begin));
}

void Document::insert(std::size_t position, Document fragment) {
  const Range range{position, position};
  splice(range, fitted(range, std::move(fragment)));
}

void Document::append(Document other) {
  insert(length(), std::move(other));
}

void Document::changeFormat(Range range, const std::function<void(CharFormat&)>& change) {
  Document fragment = slice(range);
  for (Paragraph& paragraph : fragment.paragraphs_) {
    for (Run& run : paragraph.runs) change(run.format);
    normalise(paragraph);
  }
  splice(range, std::move(fragment));
}

void Document::changeParagraphs(Range range, const std::function<void(ParagraphFormat&)>& change) {
  range = clamped(range);
  const std::size_t last = placeOf(range.end).paragraph;
  for (std::size_t i = placeOf(range.begin).paragraph; i <= last; ++i)
    change(paragraphs_[i].format);
}

Range Document::clamped(Range range) const {
  const std::size_t end = std::min(range.end, length());
  return {std::min(range.begin, end), end};
}

Document::Place Document::placeOf(std::size_t position) const {
  for (std::size_t i = 0; i < lengths_.size(); ++i) {
    if (position <= lengths_[i]) return {i, position};
    position -= lengths_[i] + 1;
  }
  return {lengths_.size() - 1, lengths_.back()};
}

void Document::measure() {
  lengths_.clear();
  for (const Paragraph& paragraph : paragraphs_) lengths_.push_back(lengthOf(paragraph));
}

}  // namespace richtext
