// One typed row per field of a record screen. Load, store, clear, snapshot, captions, print and the
// search columns are written once over these rows.
#pragma once

#include <string_view>

#include "platform/forms/button.h"
#include "platform/forms/text_control.h"

namespace shell {

// How the content of the control stands in its column.
enum class Stored {
  Text,       // the trimmed text
  ListIndex,  // the number of the chosen row of the list
  Amount,     // the text, a number in the picture "0.00"
  Mark,       // a check box: "1" or "0"
  Screen      // by a rule of the screen's own: the shared load and store leave the field alone
};

// Whether a new record begins with what the patient's latest one holds.
enum class CarryOver { No, Yes };

struct FieldRow {
  forms::Control& (*control)(forms::Form& form);
  std::string_view column;
  std::string_view captionKey;
  // Characters kept on the way into the column; 0 keeps what the column takes.
  int cut = 0;
  Stored stored = Stored::Text;
  CarryOver carryOver = CarryOver::No;
  // Shown in grey behind the field, and in reports behind the value.
  std::string_view unit = {};
};

// The one unit that is a word: it is shown in the user's language.
inline constexpr std::string_view perMinute = "/dk";

namespace detail {
template <class Screen, class Control>
Screen screenOf(Control Screen::*);
}  // namespace detail

// The control of a member, such as controlOf<&FrmMain::txtnot>.
template <auto Member>
forms::Control& controlOf(forms::Form& form) {
  using Screen = decltype(detail::screenOf(Member));
  return static_cast<Screen&>(form).*Member;
}

}  // namespace shell
