// A patient's record that is known by its number in its table. A number is given out again once the
// highest record is deleted: every use seeks the record anew and looks whose it is.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "shell/station.h"
#include "stores/visit_ledger.h"

namespace shell {

class NumberedRecord {
 public:
  NumberedRecord(Station& istasyon, const stores::RecordKind& kind, std::string_view patient)
      : istasyon_(istasyon), kind_(kind), patient_(patient) {}

  // Makes it the current record of its table; false when it is gone, or another patient's by now.
  [[nodiscard]] bool bul(std::int64_t number);
  // Stores it under its number or, when it has none or is gone, as a new record, inside the
  // transaction of the caller. `fill` writes the fields into the buffer. The number that it has.
  [[nodiscard]] dao::Result<std::int64_t> yaz(std::optional<std::int64_t> number,
                                              const std::function<dao::Status()>& fill);
  // One that is gone already is no fault.
  dao::Status sil(std::int64_t number);

 private:
  [[nodiscard]] dao::Recordset& tablo() { return istasyon_.stores.clinical.*kind_.recordset; }

  Station& istasyon_;
  const stores::RecordKind& kind_;
  std::string_view patient_;
};

}  // namespace shell
