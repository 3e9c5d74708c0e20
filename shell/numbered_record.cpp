#include "shell/numbered_record.h"

#include "platform/text/utf8.h"

namespace shell {

bool NumberedRecord::bul(std::int64_t number) {
  if (!tablo().Seek("=", number) || tablo().NoMatch()) return false;
  return istasyon_.stores.clinical.database.sameKey(text::trim(tablo().Fields("Name").text()),
                                                    text::trim(patient_));
}

dao::Result<std::int64_t> NumberedRecord::yaz(std::optional<std::int64_t> number,
                                              const std::function<dao::Status()>& fill) {
  dao::Recordset& table = tablo();
  const bool stored = number && bul(*number);
  const auto given = stored ? dao::Result<std::int64_t>(*number)
                            : istasyon_.stores.clinical.database.nextNumber(kind_.table, "Count");
  if (!given) return given;
  dao::Status done = stored ? table.Edit() : table.AddNew();
  if (done) done = table.Fields("Count").Set(*given);
  if (done) done = fill();
  if (done) done = table.Update();
  if (done) return given;
  table.CancelUpdate();
  return std::unexpected(done);
}

dao::Status NumberedRecord::sil(std::int64_t number) {
  return bul(number) ? tablo().Delete() : dao::Status();
}

}  // namespace shell
