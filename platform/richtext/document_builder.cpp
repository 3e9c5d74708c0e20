#include "platform/richtext/document_builder.h"

#include <utility>

namespace richtext {

void DocumentBuilder::addText(std::string_view utf8, const CharFormat& format,
                              const ParagraphFormat& paragraph) {
  if (utf8.empty()) return;
  flushCell(format);
  addRun(utf8, format);
  current_.format = paragraph;
}

void DocumentBuilder::endParagraph(const CharFormat& format, const ParagraphFormat& paragraph) {
  flushCell(format);
  if (current_.runs.empty()) current_.runs.push_back({"", format});
  current_.format = paragraph;
  if (listItem_) current_.format.mark = ListMark::Bullet;
  listItem_ = false;
  pieces_ += 2;
  paragraphs_.push_back(std::exchange(current_, {}));
}

void DocumentBuilder::endCell(const CharFormat& format, const ParagraphFormat& paragraph) {
  flushCell(format);
  cellEnded_ = true;
  current_.format = paragraph;
}

void DocumentBuilder::endRow(const CharFormat& format, const ParagraphFormat& paragraph) {
  cellEnded_ = false;
  endParagraph(format, paragraph);
}

Document DocumentBuilder::finish(const CharFormat& format) {
  cellEnded_ = false;
  if (inParagraph() || paragraphs_.empty()) endParagraph(format, current_.format);
  return Document(std::move(paragraphs_));
}

void DocumentBuilder::addRun(std::string_view utf8, const CharFormat& format) {
  textBytes_ += utf8.size();
  std::vector<Run>& runs = current_.runs;
  if (!runs.empty() && runs.back().format == format) {
    runs.back().text += utf8;
    return;
  }
  runs.push_back({std::string(utf8), format});
  ++pieces_;
}

void DocumentBuilder::flushCell(const CharFormat& format) {
  if (cellEnded_) addRun("\t", format);
  cellEnded_ = false;
}

}  // namespace richtext
