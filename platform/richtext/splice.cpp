// Taking a piece out of a document and putting one in: the pair that all editing is made of.
#include <iterator>
#include <utility>

#include "platform/richtext/document.h"
#include "platform/richtext/utf8.h"

namespace richtext {
namespace {

// The runs from one place of a paragraph to another. Without any text in between, one empty run
// keeps the format that is met at the begin.
std::vector<Run> runsBetween(const Paragraph& paragraph, std::size_t begin, std::size_t end) {
  std::vector<Run> runs;
  CharFormat met = paragraph.runs.back().format;
  std::size_t position = 0;
  for (const Run& run : paragraph.runs) {
    const std::size_t start = position;
    position += characterCount(run.text);
    if (position <= begin) continue;
    if (start <= begin) met = run.format;
    if (start >= end) break;
    const std::size_t from = byteOffset(run.text, begin > start ? begin - start : 0);
    const std::size_t to = end < position ? byteOffset(run.text, end - start) : run.text.size();
    if (from < to) runs.push_back({run.text.substr(from, to - from), run.format});
  }
  if (runs.empty()) runs.push_back({"", met});
  return runs;
}

void appendRuns(std::vector<Run> from, std::vector<Run>& to) {
  to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
}

}  // namespace

Document Document::slice(Range range) const {
  range = clamped(range);
  const Place begin = placeOf(range.begin);
  const Place end = placeOf(range.end);
  Document fragment;
  fragment.paragraphs_.clear();
  for (std::size_t i = begin.paragraph; i <= end.paragraph; ++i) {
    const std::size_t from = i == begin.paragraph ? begin.offset : 0;
    const std::size_t to = i == end.paragraph ? end.offset : lengths_[i];
    fragment.paragraphs_.push_back({runsBetween(paragraphs_[i], from, to), paragraphs_[i].format});
  }
  fragment.measure();
  return fragment;
}

// The commonest edit by far is typing inside a run; it must not take a long paragraph apart.
bool Document::replaceInsideRun(Place begin, Place end, const Document& fragment) {
  if (begin.paragraph != end.paragraph || fragment.paragraphs_.size() != 1) return false;
  const Paragraph& piece = fragment.paragraphs_.front();
  Paragraph& paragraph = paragraphs_[begin.paragraph];
  if (piece.runs.size() != 1 || piece.runs.front().text.empty()) return false;
  std::size_t position = 0;
  for (Run& run : paragraph.runs) {
    const std::size_t start = position;
    position += characterCount(run.text);
    if (position < end.offset || run.format != piece.runs.front().format) continue;
    if (begin.offset < start) return false;
    const std::size_t from = byteOffset(run.text, begin.offset - start);
    const std::size_t to = byteOffset(run.text, end.offset - start);
    run.text.replace(from, to - from, piece.runs.front().text);
    paragraph.format = piece.format;
    lengths_[begin.paragraph] += fragment.lengths_.front() - (end.offset - begin.offset);
    return true;
  }
  return false;
}

void Document::splice(Range range, Document fragment) {
  range = clamped(range);
  const Place begin = placeOf(range.begin);
  const Place end = placeOf(range.end);
  if (replaceInsideRun(begin, end, fragment)) return;

  std::vector<Paragraph>& pieces = fragment.paragraphs_;
  const std::size_t tailLength = lengths_[end.paragraph] - end.offset;
  std::vector<Run> tail = splitRuns(paragraphs_[end.paragraph], end.offset);
  Paragraph& first = paragraphs_[begin.paragraph];
  if (begin.paragraph != end.paragraph || begin.offset < end.offset) splitRuns(first, begin.offset);

  appendRuns(std::move(pieces.front().runs), first.runs);
  first.format = pieces.front().format;
  pieces.front() = std::move(first);
  fragment.lengths_.front() += begin.offset;
  appendRuns(std::move(tail), pieces.back().runs);
  fragment.lengths_.back() += tailLength;
  normalise(pieces.front());
  normalise(pieces.back());
  replaceParagraphs(begin.paragraph, end.paragraph + 1, std::move(fragment));
}

void Document::replaceParagraphs(std::size_t begin, std::size_t end, Document fragment) {
  const auto at = [](auto& list, std::size_t index) {
    return list.begin() + static_cast<std::ptrdiff_t>(index);
  };
  std::vector<Paragraph>& pieces = fragment.paragraphs_;
  const std::size_t same = std::min(end - begin, pieces.size());
  std::move(pieces.begin(), at(pieces, same), at(paragraphs_, begin));
  std::copy(fragment.lengths_.begin(), at(fragment.lengths_, same), at(lengths_, begin));
  paragraphs_.erase(at(paragraphs_, begin + same), at(paragraphs_, end));
  lengths_.erase(at(lengths_, begin + same), at(lengths_, end));
  paragraphs_.insert(at(paragraphs_, begin + same), std::make_move_iterator(at(pieces, same)),
                     std::make_move_iterator(pieces.end()));
  lengths_.insert(at(lengths_, begin + same), at(fragment.lengths_, same), fragment.lengths_.end());
}

Document Document::fitted(Range range, Document fragment) const {
  range = clamped(range);
  const Place begin = placeOf(range.begin);
  const Place end = placeOf(range.end);
  const ParagraphFormat& first = paragraphs_[begin.paragraph].format;
  const ParagraphFormat& last = paragraphs_[end.paragraph].format;
  const bool keepsHead = begin.offset > 0;
  const bool keepsTail = end.offset < lengths_[end.paragraph];
  std::vector<Paragraph>& pieces = fragment.paragraphs_;
  if (fragment.empty()) {
    pieces.front().format = !keepsHead && keepsTail ? last : first;
    return fragment;
  }
  const bool single = pieces.size() == 1;
  if (!single && keepsTail) pieces.back().format = last;
  if (keepsHead || (single && keepsTail)) pieces.front().format = first;
  return fragment;
}

Document Document::typed(Range range, std::string_view text, const CharFormat& format) const {
  return fromText(text, format, paragraphFormatAt(clamped(range).begin));
}

}  // namespace richtext
