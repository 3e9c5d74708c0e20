// One row per captioned control of the whole program.
#pragma once

#include <span>
#include <string_view>

#include "shell/phrases.h"

namespace shell {

enum class CaptionKind {
  Plain,     // the text as it is
  Menu,      // with the mark of the mnemonic in front
  Colon,     // a label: with ":" behind
  Ellipsis,  // "..." in front
  Window     // the caption of the form itself; `control` is the form's name
};

struct CaptionRow {
  std::string_view control;
  std::string_view key;
  CaptionKind kind = CaptionKind::Plain;
  std::string_view form =
      {};  // only on this form, when the name occurs on several with different words
};
[[nodiscard]] std::span<const CaptionRow> captionRows();

// Buttons and tabs, found by their keys in any toolbar or tab strip.
struct KeyedCaption {
  std::string_view key;
  std::string_view textKey;
  std::string_view wordKey = {};  // a shorter one, for the button itself
};
[[nodiscard]] std::span<const KeyedCaption> toolTipRows();
[[nodiscard]] std::span<const KeyedCaption> tabRows();

// Controls whose words are not in the vocabulary.
struct PhraseRow {
  std::string_view control;
  Phrase phrase;
};
[[nodiscard]] std::span<const PhraseRow> phraseCaptions();

}  // namespace shell
