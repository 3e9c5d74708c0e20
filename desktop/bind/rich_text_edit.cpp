#include "desktop/bind/rich_text_edit.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

#include "desktop/bind/paste.h"
#include "desktop/bind/rich_text_format.h"
#include "desktop/text.h"

namespace desktop {

namespace {

const QString richTextType = QStringLiteral("text/rtf");

using Edit = void (*)(richtext::Editor& editor);

constexpr double paperMargin = 12;

struct EditCommand {
  QKeySequence::StandardKey key;
  Edit apply;
};
constexpr EditCommand editCommands[] = {
    {QKeySequence::Undo, [](richtext::Editor& e) { e.undo(); }},
    {QKeySequence::Redo, [](richtext::Editor& e) { e.redo(); }},
    {QKeySequence::Bold, [](richtext::Editor& e) { e.setSelBold(!e.selBold().value_or(false)); }},
    {QKeySequence::Italic,
     [](richtext::Editor& e) { e.setSelItalic(!e.selItalic().value_or(false)); }},
    {QKeySequence::Underline,
     [](richtext::Editor& e) { e.setSelUnderline(!e.selUnderline().value_or(false)); }},
};

struct EditKey {
  int key;
  Edit apply;
};
constexpr EditKey editKeys[] = {
    {Qt::Key_Backspace, [](richtext::Editor& e) { e.backspace(); }},
    {Qt::Key_Delete, [](richtext::Editor& e) { e.deleteForward(); }},
    {Qt::Key_Return, [](richtext::Editor& e) { e.insert("\n"); }},
    {Qt::Key_Enter, [](richtext::Editor& e) { e.insert("\n"); }},
};

Edit editOf(const QKeyEvent& event) {
  for (const EditCommand& row : editCommands) {
    if (event.matches(row.key)) return row.apply;
  }
  for (const EditKey& row : editKeys) {
    if (event.key() == row.key && !event.modifiers().testFlag(Qt::ControlModifier))
      return row.apply;
  }
  return nullptr;
}

bool isTyped(const QKeyEvent& event) {
  const bool command = event.modifiers().testFlag(Qt::ControlModifier) !=
                       event.modifiers().testFlag(Qt::AltModifier);
  return !event.text().isEmpty() && !command && event.text()[0].isPrint();
}

// A text that is printed shows as on paper, on a dark desk too.
QPalette paper() {
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  return palette;
}

void writeParagraph(QTextCursor& cursor, const richtext::Paragraph& paragraph) {
  cursor.setBlockFormat(blockFormat(paragraph.format));
  for (const richtext::Run& run : paragraph.runs) {
    cursor.setBlockCharFormat(charFormat(run.format));
    cursor.insertText(qs(run.text), charFormat(run.format));
  }
}

}  // namespace

RichTextEdit::RichTextEdit(QWidget* parent) : QTextEdit(parent) {
  // The toolkit moves the cursor and selects; it never edits by itself.
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setAttribute(Qt::WA_InputMethodEnabled);
  setUndoRedoEnabled(false);
  setAcceptDrops(false);
  setPalette(paper());
  document()->setDocumentMargin(paperMargin);
  setTabChangesFocus(true);
  connect(this, &QTextEdit::cursorPositionChanged, this, &RichTextEdit::reportSelection);
  connect(this, &QTextEdit::selectionChanged, this, &RichTextEdit::reportSelection);
}

void RichTextEdit::setBox(forms::RichTextBox& box, QObject& tie) {
  box_ = &box;
  tie_ = &tie;
  shown_.clear();
  refresh();
}

void RichTextEdit::edit(const std::function<void(richtext::Editor&)>& action) {
  if (box() != nullptr) box_->edit(action);
}

// Only the paragraphs between the common beginning and the common end are written anew.
void RichTextEdit::refresh() {
  if (box() == nullptr) return;
  const std::vector<richtext::Paragraph>& now = box_->editor().document().paragraphs();
  const std::size_t shorter = std::min(now.size(), shown_.size());
  std::size_t head = 0;
  while (head < shorter && now[head] == shown_[head]) ++head;
  std::size_t tail = 0;
  while (tail < shorter - head && now[now.size() - 1 - tail] == shown_[shown_.size() - 1 - tail])
    ++tail;
  if (head != now.size() || head != shown_.size())
    replaceBlocks(head, shown_.size() - head - tail, now.size() - head - tail);
  shown_ = now;
  refreshSelection();
}

void RichTextEdit::replaceBlocks(std::size_t first, std::size_t oldCount, std::size_t newCount) {
  const QScopedValueRollback quiet(refreshing_, true);
  const auto& now = box_->editor().document().paragraphs();
  // A document of the toolkit always has a block; the first content goes into it.
  const std::size_t blocks = std::max<std::size_t>(shown_.size(), 1);
  if (shown_.empty()) oldCount = 1;
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  const bool atEnd = first >= blocks;
  const QTextBlock start =
      document()->findBlockByNumber(static_cast<int>(atEnd ? blocks - 1 : first));
  cursor.setPosition(atEnd ? start.position() + start.length() - 1 : start.position());
  if (oldCount > 0) {
    const QTextBlock last = document()->findBlockByNumber(static_cast<int>(first + oldCount - 1));
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    // Without anything in its place the emptied block goes as well.
    if (newCount == 0) {
      first > 0 ? cursor.deletePreviousChar() : cursor.deleteChar();
      cursor.setBlockFormat(blockFormat(now[first > 0 ? first - 1 : 0].format));
    }
  } else if (newCount > 0) {
    cursor.insertBlock();
    if (!atEnd) cursor.movePosition(QTextCursor::PreviousBlock);
  }
  for (std::size_t i = 0; i < newCount; ++i) {
    if (i > 0) cursor.insertBlock();
    writeParagraph(cursor, now[first + i]);
  }
  cursor.endEditBlock();
}

void RichTextEdit::refreshSelection() {
  if (box() == nullptr) return;
  const QScopedValueRollback quiet(refreshing_, true);
  const richtext::Editor& editor = box_->editor();
  QTextCursor cursor = textCursor();
  const int begin = positionAt(editor.selStart());
  const int end = positionAt(editor.selStart() + editor.selLength());
  if (cursor.selectionStart() == begin && cursor.selectionEnd() == end) return;
  cursor.setPosition(begin);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void RichTextEdit::reportSelection() {
  if (refreshing_ || box() == nullptr) return;
  const std::size_t begin = characterAt(textCursor().selectionStart());
  const std::size_t length = characterAt(textCursor().selectionEnd()) - begin;
  if (begin == box_->editor().selStart() && length == box_->editor().selLength()) return;
  box_->select(begin, length);
}

std::size_t RichTextEdit::characterAt(int position) const {
  std::size_t characters = 0;
  const QTextBlock end = document()->findBlock(position);
  for (QTextBlock block = document()->begin(); block.isValid() && block != end;
       block = block.next()) {
    characters += charactersBefore(block.text(), block.text().size()) + 1;
  }
  return characters + charactersBefore(end.text(), position - end.position());
}

int RichTextEdit::positionAt(std::size_t character) const {
  QTextBlock block = document()->begin();
  for (; block.next().isValid(); block = block.next()) {
    const std::size_t length = charactersBefore(block.text(), block.text().size());
    if (character <= length) break;
    character -= length + 1;
  }
  return block.position() + static_cast<int>(unitsBefore(block.text(), character));
}

void RichTextEdit::keyPressEvent(QKeyEvent* event) {
  if (!editByKey(*event)) return QTextEdit::keyPressEvent(event);
  event->accept();
  ensureCursorVisible();
}

bool RichTextEdit::editByKey(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Cut)) {
    cutSelection();
  } else if (event.matches(QKeySequence::Paste)) {
    paste();
  } else if (const Edit apply = editOf(event)) {
    edit(apply);
  } else if (isTyped(event) && event.key() != Qt::Key_Tab) {
    edit([&](richtext::Editor& editor) { editor.insert(utf8(event.text())); });
  } else {
    return false;
  }
  return true;
}

void RichTextEdit::inputMethodEvent(QInputMethodEvent* event) {
  const std::string committed = utf8(event->commitString());
  if (!committed.empty()) edit([&](richtext::Editor& editor) { editor.insert(committed); });
  event->accept();
}

void RichTextEdit::cutSelection() {
  if (box() == nullptr || box_->editor().selLength() == 0) return;
  QApplication::clipboard()->setMimeData(createMimeDataFromSelection());
  edit([](richtext::Editor& editor) { editor.cut(); });
}

QMimeData* RichTextEdit::createMimeDataFromSelection() const {
  auto* const mime = new QMimeData;
  if (box() == nullptr) return mime;
  mime->setText(qs(box_->editor().selText()));
  mime->setData(richTextType,
                QByteArray::fromStdString(richtext::Editor(box_->editor().copy()).textRTF()));
  return mime;
}

void RichTextEdit::insertFromMimeData(const QMimeData* source) {
  richtext::Editor foreign;
  const bool rich = source->hasFormat(richTextType) &&
                    foreign.setTextRTF(source->data(richTextType).toStdString());
  const std::string plain = rich ? foreign.text() : utf8(withoutControls(source->text()));
  if (tooLongToPaste(*this, plain.size())) return;
  edit([&](richtext::Editor& editor) {
    rich ? editor.paste(foreign.document()) : editor.insert(plain);
  });
}

// The toolkit's menu edits the shown text behind the editor's back.
void RichTextEdit::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
}

}  // namespace desktop
