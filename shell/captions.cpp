#include "shell/captions.h"

#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"
#include "shell/caption_rows.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace shell {

namespace {

std::string worded(Station& istasyon, const CaptionRow& row) {
  const std::string word = metinbul(istasyon, row.key);
  switch (row.kind) {
    case CaptionKind::Menu:
      return "&" + word;
    case CaptionKind::Colon:
      return word + ":";
    case CaptionKind::Ellipsis:
      return "..." + word;
    case CaptionKind::Plain:
    case CaptionKind::Window:
      break;
  }
  return word;
}

void captionControls(Station& istasyon, forms::Form& form) {
  for (const CaptionRow& row : captionRows()) {
    if (!row.form.empty() && row.form != form.name()) continue;
    if (row.kind == CaptionKind::Window) {
      if (row.control == form.name()) form.setCaption(worded(istasyon, row));
    } else if (forms::Control* control = form.find(row.control)) {
      control->setCaption(worded(istasyon, row));
    }
  }
  for (const PhraseRow& row : phraseCaptions()) {
    if (forms::Control* control = form.find(row.control))
      control->setCaption(phrase(istasyon, row.phrase));
  }
}

constexpr auto wordsSetting = "toolbar words";

void captionButtons(Station& istasyon, forms::Toolbar& toolbar) {
  for (const KeyedCaption& row : toolTipRows()) {
    toolbar.setButtonToolTip(row.key, metinbul(istasyon, row.textKey));
    if (!row.wordKey.empty()) toolbar.setButtonWord(row.key, metinbul(istasyon, row.wordKey));
  }
  const bool shown = istasyon.ayar(wordsSetting, "1") == "1";
  toolbar.setWords(shown ? forms::ButtonWords::Shown : forms::ButtonWords::Hidden,
                   {.caption = phrase(istasyon, Phrase::ToolbarWords),
                    .keep = [&istasyon](forms::ButtonWords words) {
                      istasyon.ayarYaz(wordsSetting,
                                       words == forms::ButtonWords::Shown ? "1" : "0");
                    }});
}

}  // namespace

void basliklariyaz(Station& istasyon, forms::Form& form) {
  captionControls(istasyon, form);
  for (forms::Control* control : form.controls()) {
    if (auto* toolbar = dynamic_cast<forms::Toolbar*>(control)) {
      captionButtons(istasyon, *toolbar);
    }
    if (auto* strip = dynamic_cast<forms::TabStrip*>(control)) {
      for (const KeyedCaption& row : tabRows())
        strip->setTabCaption(row.key, metinbul(istasyon, row.textKey));
    }
    if (auto* date = dynamic_cast<forms::DateBox*>(control))
      date->setCalendarWord(phrase(istasyon, Phrase::Calendar));
  }
}

void alanBasliklari(Station& istasyon, forms::Form& form, std::span<const FieldRow> fields) {
  for (const FieldRow& row : fields) {
    row.control(form).setCaption(metinbul(istasyon, row.captionKey));
    auto* const field = dynamic_cast<forms::TextControl*>(&row.control(form));
    if (field != nullptr) field->setUnit(unitOf(istasyon, row));
  }
}

std::string unitOf(Station& istasyon, const FieldRow& row) {
  return row.unit == perMinute ? phrase(istasyon, Phrase::PerMinute) : std::string(row.unit);
}

}  // namespace shell
