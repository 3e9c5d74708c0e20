#include "shell/snapshot.h"

#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"

namespace shell {

namespace {

constexpr std::string_view dateControl = "txttarih";

std::string textsWithoutDate(const forms::Form& form) {
  std::string texts;
  for (const forms::Control* control : form.controls()) {
    if (control->name() != dateControl) texts += control->snapshotText();
  }
  return texts;
}

}  // namespace

std::string alanMetinleri(const forms::Form& form) {
  std::string texts;
  for (const forms::Control* control : form.controls()) texts += control->snapshotText();
  if (const forms::Control* date = form.find(dateControl)) texts += date->snapshotText();
  return texts;
}

bool bosMu(const forms::Form& form) {
  return textsWithoutDate(form).empty();
}

void alanyedekle(Station& istasyon, forms::Form& form) {
  istasyon.AlanYedegi = alanMetinleri(form);
  if (forms::Control* save = form.find("mnukaydet")) save->setEnabled(false);
  if (auto* toolbar = dynamic_cast<forms::Toolbar*>(form.find("tbToolBar")))
    toolbar->setButtonEnabled("Save", false);
}

void hepsinisec(const forms::Form& form) {
  if (auto* active = dynamic_cast<forms::TextControl*>(form.activeControl())) active->selectAll();
}

}  // namespace shell
