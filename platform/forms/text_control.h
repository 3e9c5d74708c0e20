// Controls that hold a text: the text box, and the combo box with its list.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/key.h"
#include "platform/text/date.h"

namespace forms {

// Setting a different text fires Change at once; an equal text fires nothing.
class TextControl : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::string& text() const { return text_; }
  // A text longer than maxLength is cut to it, in characters.
  void setText(std::string_view text);

  // 0 means no limit.
  [[nodiscard]] std::size_t maxLength() const { return maxLength_; }
  void setMaxLength(std::size_t characters);

  // The user reads and copies it, and cannot change it.
  [[nodiscard]] bool locked() const { return locked_; }
  void setLocked(bool locked);

  // In characters from the start of the text.
  [[nodiscard]] std::size_t selStart() const { return selStart_; }
  [[nodiscard]] std::size_t selLength() const { return selLength_; }
  void select(std::size_t start, std::size_t length);
  void selectAll();
  // The widget reports what the user selected; nothing is drawn again.
  void selectionMoved(std::size_t start, std::size_t length);

  [[nodiscard]] std::string snapshotText() const override { return text_; }

  // What stands behind the field: its unit, its normal range.
  [[nodiscard]] const std::string& unit() const { return unit_; }
  void setUnit(std::string_view unit) { unit_ = std::string(unit); }

  Event<> Change;
  Event<> DblClick;
  Event<Key> KeyUp;
  // A handler may replace the typed character, or eat it by setting 0.
  Event<char32_t&> KeyPress;

 protected:
  // Takes the text without firing Change; tells whether it was different.
  bool replaceText(std::string_view text);
  virtual void textReplaced() {}

 private:
  std::string text_;
  std::string unit_;
  std::size_t maxLength_ = 0;
  bool locked_ = false;
  std::size_t selStart_ = 0;
  std::size_t selLength_ = 0;
};

enum class TextLines { Single, Multiple };
enum class TextEcho { Plain, Password };

class TextBox : public TextControl {
 public:
  TextBox(Form& form, std::string_view name, TextLines lines = TextLines::Single,
          TextEcho echo = TextEcho::Plain)
      : TextControl(form, name), lines_(lines), echo_(echo) {}

  [[nodiscard]] TextLines lines() const { return lines_; }
  [[nodiscard]] TextEcho echo() const { return echo_; }

 private:
  TextLines lines_;
  TextEcho echo_;
};

// A date as it is typed, day before month; its owner decides what happens to a text that is none.
class DateBox : public TextControl {
 public:
  using TextControl::TextControl;

  // What the text spells; without a year it is the year of `today`.
  [[nodiscard]] std::optional<text::DateTime> date(const text::DateTime& today) const {
    return text::parseDate(text(), today);
  }
  void setDate(const text::DateTime& date) { setText(text::shortDate(date)); }

  // The word for the calendar that the date can be chosen from.
  [[nodiscard]] const std::string& calendarWord() const { return calendarWord_; }
  void setCalendarWord(std::string word) {
    calendarWord_ = std::move(word);
    notify(Aspect::ToolTip);
  }

 private:
  std::string calendarWord_;
};

enum class ComboStyle { Editable, ListOnly };

// A new list index sets the text to that row and fires Click, never Change; a new text fires Change
// and makes the row that equals it the chosen one.
class ComboBox : public TextControl {
 public:
  ComboBox(Form& form, std::string_view name, ComboStyle style = ComboStyle::Editable)
      : TextControl(form, name), style_(style) {}

  [[nodiscard]] ComboStyle style() const { return style_; }
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
  void addItem(std::string_view item);
  void removeItem(std::size_t row);
  void setItems(std::vector<std::string> items);
  // Empties the list and drops the index; the text of an editable combo stays.
  void clear();

  // The row that was chosen, -1 when none.
  [[nodiscard]] int listIndex() const { return listIndex_; }
  // A row beyond the list counts as -1, which blanks the text.
  void setListIndex(int row);
  // Shows a text without any event, as a list does that follows what is selected elsewhere.
  void showText(std::string_view text) { replaceText(text); }
  // The first row equal to the text letter for letter, -1 when none.
  [[nodiscard]] int rowOf(std::string_view item) const;

  Event<> Click;

 protected:
  void textReplaced() override { listIndex_ = rowOf(text()); }

 private:
  ComboStyle style_;
  std::vector<std::string> items_;
  int listIndex_ = -1;
};

}  // namespace forms
