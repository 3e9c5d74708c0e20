#include "shell/fees.h"

#include "platform/text/number.h"
#include "shell/fault_words.h"
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

}  // namespace

void ucretBicimle(forms::TextControl& fee) {
  const auto amount = text::number(fee.text());
  if (!amount) return;
  const std::string written = text::amount(*amount);
  if (fee.maxLength() == 0 || written.size() <= fee.maxLength()) fee.setText(written);
}

void eskiUcretSor(Station& istasyon, forms::TextControl& fee) {
  if (!isOldFee(fee.text()) || !istasyon.confirmLoss(question)) return;
  const auto converted = stores::ConvertOldFees(istasyon.stores.clinical);
  if (!converted) return hataSoyle(istasyon, converted.error());
  fee.setText(stores::newAmount(fee.text()));
}

}  // namespace shell
