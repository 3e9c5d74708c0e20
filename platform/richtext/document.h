// A rich text: paragraphs of runs, addressed by character positions.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/richtext/paragraph.h"

namespace richtext {

// Positions count code points from 0; the break between two paragraphs counts one.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;

  [[nodiscard]] std::size_t length() const { return end - begin; }
  bool operator==(const Range&) const = default;
};

// Always holds at least one paragraph, and every paragraph is normal (see normalise()), so equal
// looking documents compare equal. Positions and ranges beyond the end are clamped to it. Text that
// comes in may hold any bytes: line ends (CR, LF, CRLF, VT, FF) break paragraphs, other control
// characters but the tab are dropped, malformed UTF-8 becomes U+FFFD.
class Document {
 public:
  Document();
  explicit Document(std::vector<Paragraph> paragraphs);
  static Document fromText(std::string_view text, const CharFormat& format = {},
                           const ParagraphFormat& paragraphFormat = {});

  [[nodiscard]] const std::vector<Paragraph>& paragraphs() const { return paragraphs_; }
  [[nodiscard]] std::size_t length() const;
  [[nodiscard]] bool empty() const { return length() == 0; }

  // Paragraphs are joined by "\n".
  [[nodiscard]] std::string plainText() const;
  [[nodiscard]] std::string plainText(Range range) const;

  // The format of the character at the position. A paragraph break, like the end, answers for the
  // character before it, in an empty paragraph for what is typed there next.
  [[nodiscard]] const CharFormat& formatAt(std::size_t position) const;
  [[nodiscard]] const ParagraphFormat& paragraphFormatAt(std::size_t position) const;
  [[nodiscard]] bool startsParagraph(std::size_t position) const;

  // Calls with the format of each run that the range touches, for an empty range with formatAt().
  void visitFormats(Range range, const std::function<void(const CharFormat&)>& visit) const;
  void visitParagraphs(Range range, const std::function<void(const ParagraphFormat&)>& visit) const;

  void insertText(std::size_t position, std::string_view text, const CharFormat& format);
  void replaceText(Range range, std::string_view text, const CharFormat& format);
  void erase(Range range);
  void insert(std::size_t position, Document fragment);
  // Joins the other document's first paragraph to this one's last, as typing it at the end would.
  void append(Document other);
  void changeFormat(Range range, const std::function<void(CharFormat&)>& change);
  void changeParagraphs(Range range, const std::function<void(ParagraphFormat&)>& change);

  // The exact pair behind all editing: splice(range, fragment) is undone by splicing the slice that
  // was taken before. The fragment's first and last paragraph formats become those of the
  // paragraphs that they join.
  [[nodiscard]] Document slice(Range range) const;
  void splice(Range range, Document fragment);
  // The fragment with paragraph formats as a person expects them where it replaces the range: a
  // paragraph that keeps text of its own keeps its format.
  [[nodiscard]] Document fitted(Range range, Document fragment) const;
  // The fragment that typing this text over the range leaves there.
  [[nodiscard]] Document typed(Range range, std::string_view text, const CharFormat& format) const;

  bool operator==(const Document& other) const { return paragraphs_ == other.paragraphs_; }

 private:
  struct Place {
    std::size_t paragraph;
    std::size_t offset;
  };

  [[nodiscard]] Range clamped(Range range) const;
  [[nodiscard]] Place placeOf(std::size_t position) const;
  [[nodiscard]] bool replaceInsideRun(Place begin, Place end, const Document& fragment);
  void replaceParagraphs(std::size_t begin, std::size_t end, Document fragment);
  void measure();

  std::vector<Paragraph> paragraphs_;
  std::vector<std::size_t> lengths_;  // characters of each paragraph, without its break
};

}  // namespace richtext
