// A rich-text control without a window: a document with a selection, typing, find and undo.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/richtext/document.h"
#include "platform/richtext/find.h"
#include "platform/richtext/history.h"
#include "platform/status/status.h"

namespace richtext {

// Getters of the selection's format answer none where the selection is mixed. With an empty
// selection, setters change the format that is typed next, until the caret moves.
class Editor {
 public:
  Editor() = default;
  explicit Editor(Document document) : document_(std::move(document)) {}

  // New content: caret at the start, nothing to undo, unmodified.
  void load(Document document);
  [[nodiscard]] const Document& document() const { return document_; }
  [[nodiscard]] std::string text() const { return document_.plainText(); }
  [[nodiscard]] std::string textRTF() const;
  // Damaged leaves the content as it was.
  platform::Status setTextRTF(std::string_view bytes);

  [[nodiscard]] std::size_t selStart() const { return selection_.begin; }
  [[nodiscard]] std::size_t selLength() const { return selection_.length(); }
  [[nodiscard]] std::string selText() const { return document_.plainText(selection_); }
  void select(std::size_t start, std::size_t length = 0);
  void selectAll() { select(0, document_.length()); }

  // Editing replaces the selection and leaves the caret behind what was inserted.
  void insert(std::string_view text);
  void paste(const Document& fragment);
  void backspace();
  void deleteForward();
  [[nodiscard]] Document copy() const { return document_.slice(selection_); }
  Document cut();

  [[nodiscard]] std::optional<std::string> selFontName() const;
  [[nodiscard]] std::optional<int> selHalfPoints() const;
  [[nodiscard]] std::optional<bool> selBold() const;
  [[nodiscard]] std::optional<bool> selItalic() const;
  [[nodiscard]] std::optional<bool> selUnderline() const;
  [[nodiscard]] std::optional<bool> selStrike() const;
  [[nodiscard]] std::optional<Colour> selColour() const;
  [[nodiscard]] std::optional<Alignment> selAlignment() const;
  [[nodiscard]] std::optional<ListMark> selMark() const;
  // What is typed next; the screens copy it as one.
  [[nodiscard]] CharFormat typingFormat() const;

  void setSelFontName(const std::string& font);
  void setSelHalfPoints(int halfPoints);
  void setSelBold(bool bold);
  void setSelItalic(bool italic);
  void setSelUnderline(bool underline);
  void setSelStrike(bool strike);
  void setSelColour(Colour colour);
  void setSelFormat(const CharFormat& format);
  void setSelAlignment(Alignment alignment);
  void setSelMark(ListMark mark);
  void setSelIndents(int left, int right, int first);

  // The first match that starts at or after `from`; it becomes the selection.
  std::optional<std::size_t> find(std::string_view what, std::size_t from = 0,
                                  FindOptions options = {});

  [[nodiscard]] bool canUndo() const { return history_.canUndo(); }
  [[nodiscard]] bool canRedo() const { return history_.canRedo(); }
  void undo();
  void redo();

  // Undoing back to the content that was loaded or saved makes it unmodified again.
  [[nodiscard]] bool modified() const { return history_.modified(); }
  void markSaved() { history_.markSaved(); }

 private:
  void apply(Range range, Document fragment, EditKind kind);
  void erase(Range range, EditKind kind);
  void changeSelection(const std::function<void(CharFormat&)>& change);
  void changeParagraphs(const std::function<void(ParagraphFormat&)>& change);
  void changeInPlace(const std::function<void()>& change);
  template <class T>
  std::optional<T> common(T CharFormat::*field) const;
  template <class T>
  std::optional<T> commonParagraph(T ParagraphFormat::*field) const;

  Document document_;
  Range selection_;
  std::optional<CharFormat> typing_;  // set by the setters while the selection is empty
  History history_;
};

}  // namespace richtext
