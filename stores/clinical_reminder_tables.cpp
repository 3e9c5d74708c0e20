#include "stores/clinical_tables.h"

#include <array>

namespace stores::clinical {

namespace {

constexpr std::array tblWarnFields{text("name", 50), text("warn", 250)};
constexpr std::array tblWarnIndexes{primaryKey("name")};

constexpr std::array tblRemFields{autoNumber("id"),         text("name", 50),
                                  date("rem_date"),         text("subject", 100),
                                  text("explanation", 250), text("outcome", 250)};
constexpr std::array tblRemIndexes{primaryKey("id")};
constexpr std::array tblRemHelpers{dao::HelperDef{dao::HelperIndex::Plain, "name"}};

}  // namespace

const dao::TableDef tblWarn{"tblWarn", tblWarnFields, tblWarnIndexes, {}};
const dao::TableDef tblRem{"tblRem", tblRemFields, tblRemIndexes, tblRemHelpers};

}  // namespace stores::clinical
