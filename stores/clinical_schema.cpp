#include "stores/clinical_schema.h"

#include <array>

namespace stores {

namespace {

// Wide enough for the longest speciality word, a kind mark and a patient's name of 40 characters.
constexpr int ledgerKeyWidth = 80;

constexpr std::array visitFields{memo("Visit Numbers"), text("spname", ledgerKeyWidth),
                                 number("Visit Count"), date("Last Visit Date")};
constexpr std::array visitIndexes{primaryKey("spname")};

constexpr std::array clinicalTables{dao::TableDef{"Visit", visitFields, visitIndexes, {}}};

}  // namespace

Schema clinicalSchema() {
  return clinicalTables;
}

}  // namespace stores
