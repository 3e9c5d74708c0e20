// The card on paper.
#include <algorithm>
#include <array>

#include "platform/text/date.h"
#include "platform/text/utf8.h"
#include "registry/card_fields.h"
#include "registry/frm_main.h"

namespace registry {

namespace {

// Not for readers: where the photograph lies, and the mark of hidden patients.
constexpr std::array<std::string_view, 2> unprinted{"Photo", "Key"};

}  // namespace

// Fields of one caption that follow each other, such as the lines of the address, share a line.
void FrmMain::Yazılar(documents::ReportText& yazı) {
  std::string caption;
  std::string joined;
  for (const shell::FieldRow& row : alanlar()) {
    const forms::TextControl& field = kontrol(row);
    const std::string value = text::trim(&field == &Txtİsim ? sisim(basilanIsim()) : field.text());
    if (value.empty() || std::ranges::find(unprinted, row.column) != unprinted.end()) continue;
    if (field.caption() != caption) yazı.alan(caption, std::exchange(joined, {}));
    caption = field.caption();
    joined += joined.empty() ? value : ", " + value;
  }
  yazı.alan(caption, joined);
}

std::string FrmMain::basilanTarih() const {
  return text::shortDate(istasyon.clock.today());
}

// Only a patient who is on the card is printed, and none who is hidden from this user.
void FrmMain::baskiTuslari() {
  const bool patient = !TxtEskiİsim.text().empty() && !gizliMi(txtkey.text());
  mnuonizleme.setEnabled(patient);
  mnuyazdır.setEnabled(patient);
}

}  // namespace registry
