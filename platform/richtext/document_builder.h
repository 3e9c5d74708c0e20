// Gathers a document from text that arrives in pieces.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/richtext/document.h"

namespace richtext {

class DocumentBuilder {
 public:
  // The paragraph format counts only if the text ends without a paragraph end.
  void addText(std::string_view utf8, const CharFormat& format, const ParagraphFormat& paragraph);
  void endParagraph(const CharFormat& format, const ParagraphFormat& paragraph);
  [[nodiscard]] bool inParagraph() const { return !current_.runs.empty(); }

  // Cells of one line are parted by tabs; the last one's end is the line's end.
  void endCell(const CharFormat& format, const ParagraphFormat& paragraph);
  void endRow(const CharFormat& format, const ParagraphFormat& paragraph);

  // The paragraph that is being gathered, and only that, is a list item.
  void markListItem() { listItem_ = true; }

  [[nodiscard]] std::size_t textBytes() const { return textBytes_; }
  [[nodiscard]] std::size_t pieces() const { return pieces_; }

  // A paragraph end right before the end does not start another paragraph.
  Document finish(const CharFormat& format);

 private:
  void addRun(std::string_view utf8, const CharFormat& format);
  void flushCell(const CharFormat& format);

  std::vector<Paragraph> paragraphs_;
  Paragraph current_;
  std::size_t textBytes_ = 0;
  std::size_t pieces_ = 0;
  bool cellEnded_ = false;
  bool listItem_ = false;
};

}  // namespace richtext
