#include "shell/fees.h"

#include <algorithm>
#include <utility>

#include "platform/text/number.h"
#include "shell/backup.h"
#include "shell/fault_words.h"
#include "shell/file_words.h"
#include "shell/text_lookup.h"
#include "stores/old_fees.h"

namespace shell {

namespace {

// In Turkish whatever the language is: nobody else had old lira.
constexpr auto question =
    "Eski Kayıtlarınız arasında TL formatında ücret kayıtları bulunmuştur.\n"
    "Bu kayıtları YTL'ye dönüştürmek istiyor musunuz?";

// Amounts in new lira are stored with a point.
bool isOldFee(const std::string& fee) {
  return fee.find('.') == fee.npos && stores::isOldAmount(fee);
}

// The tables of the store under the names of their screens.
constexpr std::pair<std::string_view, std::string_view> tableCaptions[] = {
    {"Physical Exam", "Muayene"},
    {"Operation", "Ameliyat"},
    {"Gravid Control", "Gebelikler"},
    {"Lens", "Lens"},
    {"Echo", "Eko"},
    {"Angio", "Anjiyo"},
    {"Efor", "Efor"},
    {"Pathology", "Patoloji"},
    {"Lens Stock", "lensstok"}};

std::string tablolar(Station& istasyon, const stores::OldAmounts& found) {
  std::string lines;
  for (const stores::OldAmounts::Table& table : found.tables) {
    const auto* const row =
        std::ranges::find(tableCaptions, table.name, [](const auto& each) { return each.first; });
    const std::string_view key = row == std::end(tableCaptions) ? table.name : row->second;
    lines += "\n" + metinbul(istasyon, key) + ": " + std::to_string(table.amounts);
  }
  return lines;
}

// Yes to the question about old fees may have been meant for one of them: what it does to all of
// them is told first. Other stations go on saving meanwhile.
bool degisecekleriGorsun(Station& istasyon) {
  const auto found = stores::findOldAmounts(istasyon.stores.clinical);
  if (!found) return hataSoyle(istasyon, found.error()), false;
  return istasyon.confirmLoss(
      doldurulmus(istasyon, Phrase::FeesToConvert,
                  {std::to_string(found->amounts), tablolar(istasyon, *found), found->largest,
                   stores::newAmount(found->largest), found->smallest,
                   stores::newAmount(found->smallest), std::to_string(found->pointed)}));
}

// False when nothing is to be converted.
bool onceYedekAlinsin(Station& istasyon) {
  const std::string offer =
      doldurulmus(istasyon, Phrase::BackupBeforeFees, {yazilacakYedekKlasoru(istasyon)});
  switch (istasyon.askAboutText(offer)) {
    case host::Answer::Yes:
      return yedekle(istasyon, hazirYedekKlasoru(istasyon));
    case host::Answer::No:
      return true;
    default:
      return false;
  }
}

}  // namespace

void ucretBicimle(forms::TextControl& fee) {
  const auto amount = text::number(fee.text());
  if (!amount) return;
  const std::string written = text::amount(*amount);
  if (fee.maxLength() == 0 || written.size() <= fee.maxLength()) fee.setText(written);
}

void eskiUcretSor(Station& istasyon, forms::TextControl& fee) {
  if (!isOldFee(fee.text()) || !istasyon.confirmLoss(question)) return;
  if (!degisecekleriGorsun(istasyon) || !onceYedekAlinsin(istasyon)) return;
  const auto converted = stores::ConvertOldFees(istasyon.stores.clinical);
  if (!converted) return hataSoyle(istasyon, converted.error());
  fee.setText(stores::newAmount(fee.text()));
}

}  // namespace shell
