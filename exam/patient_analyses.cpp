#include "exam/patient_analyses.h"

#include "stores/visit_ledger.h"

namespace exam {

dao::Result<std::vector<stores::Analysis>> hastaAnalizleri(shell::Station& istasyon,
                                                           std::string_view patient) {
  stores::ClinicalStore& clinical = istasyon.stores.clinical;
  const auto row = stores::readLedgerRow(
      clinical.Visit, stores::ledgerKey(istasyon.BransAdi, stores::kind::laboratory, patient));
  if (!row) return std::unexpected(row.error());
  return stores::listedAnalyses(clinical.database, row->numbers);
}

}  // namespace exam
