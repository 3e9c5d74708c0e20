// One row of the vocabulary: a key and the texts that stand for it.
#pragma once

#include <string_view>

namespace shell {

// Which of the two tables hold the key, and how.
enum class RowKind {
  Both,          // a text in each table, and the two differ
  Untranslated,  // the English table holds the Turkish text
  Unfinished,    // the English table holds the key itself
  TurkishOnly,   // the key is missing from the English table
  EnglishOnly    // the key is missing from the Turkish table: it is the Turkish word itself
};

// Texts live as long as the program. A text that the row's kind rules out is empty.
struct Row {
  RowKind kind;
  std::string_view key;
  std::string_view english;
  std::string_view turkish;
};

}  // namespace shell
