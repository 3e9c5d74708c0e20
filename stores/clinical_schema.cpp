#include "stores/clinical_schema.h"

#include <vector>

#include "stores/clinical_tables.h"

namespace stores {

Schema clinicalSchema() {
  // In the order of creation.
  static const std::vector<dao::TableDef> tables{
      clinical::physicalExam,  clinical::doctors,       clinical::drug,      clinical::tests,
      clinical::visit,         clinical::operation,     clinical::persantil, clinical::vaccine,
      clinical::gravid,        clinical::gravidControl, clinical::lens,      clinical::lensStock,
      clinical::hospitals,     clinical::motor,         clinical::echo,      clinical::angio,
      clinical::efor,          clinical::analyze,       clinical::pathology, clinical::referance,
      clinical::sanavelCenter, clinical::tblWarn,       clinical::tblRem};
  return tables;
}

}  // namespace stores
