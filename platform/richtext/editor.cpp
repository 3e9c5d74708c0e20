#include "platform/richtext/editor.h"

#include <algorithm>

#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/rtf_writer.h"

namespace richtext {

void Editor::load(Document document) {
  document_ = std::move(document);
  selection_ = {};
  typing_.reset();
  history_.clear();
}

std::string Editor::textRTF() const {
  return writeRtf(document_);
}

platform::Status Editor::setTextRTF(std::string_view bytes) {
  platform::Result<Document> document = readRtf(bytes);
  if (!document) return document.error();
  load(*std::move(document));
  return {};
}

void Editor::select(std::size_t start, std::size_t length) {
  const std::size_t total = document_.length();
  const std::size_t begin = std::min(start, total);
  const Range selection{begin, begin + std::min(length, total - begin)};
  if (selection == selection_) return;
  selection_ = selection;
  typing_.reset();
  history_.closeGroup();
}

void Editor::insert(std::string_view text) {
  if (text.empty() && selLength() == 0) return;
  apply(selection_, document_.typed(selection_, text, typingFormat()), EditKind::Typing);
}

void Editor::paste(const Document& fragment) {
  if (fragment.empty() && selLength() == 0) return;
  apply(selection_, fragment, EditKind::Other);
}

void Editor::backspace() {
  if (selLength() > 0) return erase(selection_, EditKind::Other);
  if (selStart() > 0) erase({selStart() - 1, selStart()}, EditKind::Backspace);
}

void Editor::deleteForward() {
  if (selLength() > 0) return erase(selection_, EditKind::Other);
  if (selStart() < document_.length()) erase({selStart(), selStart() + 1}, EditKind::Delete);
}

Document Editor::cut() {
  Document fragment = copy();
  if (selLength() > 0) erase(selection_, EditKind::Other);
  return fragment;
}

std::optional<std::string> Editor::selFontName() const {
  return common(&CharFormat::font);
}
std::optional<int> Editor::selHalfPoints() const {
  return common(&CharFormat::halfPoints);
}
std::optional<bool> Editor::selBold() const {
  return common(&CharFormat::bold);
}
std::optional<bool> Editor::selItalic() const {
  return common(&CharFormat::italic);
}
std::optional<bool> Editor::selUnderline() const {
  return common(&CharFormat::underline);
}
std::optional<bool> Editor::selStrike() const {
  return common(&CharFormat::strike);
}
std::optional<Colour> Editor::selColour() const {
  return common(&CharFormat::colour);
}

std::optional<Alignment> Editor::selAlignment() const {
  return commonParagraph(&ParagraphFormat::alignment);
}

std::optional<ListMark> Editor::selMark() const {
  return commonParagraph(&ParagraphFormat::mark);
}

// Typed text looks like the character before it, at the start of a line like the one behind.
CharFormat Editor::typingFormat() const {
  if (typing_) return *typing_;
  const bool looksAhead = selLength() > 0 || document_.startsParagraph(selStart());
  return document_.formatAt(looksAhead ? selStart() : selStart() - 1);
}

void Editor::setSelFontName(const std::string& font) {
  changeSelection([&](CharFormat& format) { format.font = font; });
}

void Editor::setSelHalfPoints(int halfPoints) {
  changeSelection([=](CharFormat& format) { format.halfPoints = halfPoints; });
}

void Editor::setSelBold(bool bold) {
  changeSelection([=](CharFormat& format) { format.bold = bold; });
}

void Editor::setSelItalic(bool italic) {
  changeSelection([=](CharFormat& format) { format.italic = italic; });
}

void Editor::setSelUnderline(bool underline) {
  changeSelection([=](CharFormat& format) { format.underline = underline; });
}

void Editor::setSelStrike(bool strike) {
  changeSelection([=](CharFormat& format) { format.strike = strike; });
}

void Editor::setSelColour(Colour colour) {
  changeSelection([=](CharFormat& format) { format.colour = colour; });
}

void Editor::setSelFormat(const CharFormat& newFormat) {
  changeSelection([&](CharFormat& format) { format = newFormat; });
}

void Editor::setSelAlignment(Alignment alignment) {
  changeParagraphs([=](ParagraphFormat& format) { format.alignment = alignment; });
}

void Editor::setSelMark(ListMark mark) {
  changeParagraphs([=](ParagraphFormat& format) { format.mark = mark; });
}

void Editor::setSelIndents(int left, int right, int first) {
  changeParagraphs([=](ParagraphFormat& format) {
    format.leftIndent = left;
    format.rightIndent = right;
    format.firstIndent = first;
  });
}

std::optional<std::size_t> Editor::find(std::string_view what, std::size_t from,
                                        FindOptions options) {
  const std::optional<Range> match = findText(document_, what, from, options);
  if (!match) return std::nullopt;
  select(match->begin, match->length());
  return match->begin;
}

void Editor::undo() {
  if (!canUndo()) return;
  const EditStep& step = history_.stepBack();
  document_.splice(step.insertedRange(), step.removed);
  selection_ = step.selectionBefore;
  typing_.reset();
}

void Editor::redo() {
  if (!canRedo()) return;
  const EditStep& step = history_.stepForward();
  document_.splice(step.removedRange(), step.inserted);
  selection_ = step.selectionAfter;
  typing_.reset();
}

void Editor::apply(Range range, Document fragment, EditKind kind) {
  EditStep step{kind, range.begin, document_.slice(range), {}, selection_, {}};
  step.inserted = document_.fitted(range, std::move(fragment));
  document_.splice(range, step.inserted);
  selection_ = {step.insertedRange().end, step.insertedRange().end};
  step.selectionAfter = selection_;
  typing_.reset();
  history_.record(std::move(step));
}

void Editor::erase(Range range, EditKind kind) {
  apply(range, document_.typed(range, "", document_.formatAt(range.begin)), kind);
}

void Editor::changeSelection(const std::function<void(CharFormat&)>& change) {
  if (selLength() == 0) {
    typing_ = typingFormat();
    return change(*typing_);
  }
  changeInPlace([&] { document_.changeFormat(selection_, change); });
}

void Editor::changeParagraphs(const std::function<void(ParagraphFormat&)>& change) {
  changeInPlace([&] { document_.changeParagraphs(selection_, change); });
}

void Editor::changeInPlace(const std::function<void()>& change) {
  EditStep step{EditKind::Other, selStart(), copy(), {}, selection_, selection_};
  change();
  step.inserted = copy();
  if (step.inserted != step.removed) history_.record(std::move(step));
}

template <class T>
std::optional<T> Editor::common(T CharFormat::*field) const {
  if (selLength() == 0) return typingFormat().*field;
  std::optional<T> value;
  bool mixed = false;
  document_.visitFormats(selection_, [&](const CharFormat& format) {
    mixed = mixed || (value && *value != format.*field);
    value = format.*field;
  });
  return mixed ? std::nullopt : value;
}

template <class T>
std::optional<T> Editor::commonParagraph(T ParagraphFormat::*field) const {
  std::optional<T> value;
  bool mixed = false;
  document_.visitParagraphs(selection_, [&](const ParagraphFormat& format) {
    mixed = mixed || (value && *value != format.*field);
    value = format.*field;
  });
  return mixed ? std::nullopt : value;
}

}  // namespace richtext
