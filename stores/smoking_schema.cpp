#include "stores/smoking_schema.h"

#include <array>

namespace stores {

namespace {

// What belongs to a trial is found by the trial's number.
constexpr std::array trialHelpers{dao::HelperDef{dao::HelperIndex::Plain, "sm_num"}};

constexpr std::array smokeFields{
    autoNumber("sm_num"), integer("relapse"),       filledText("name", 40),
    date("createtime"),   date("edittime"),         text("date0", 4),
    date("date1"),        text("Cigaret", 4),       text("FTT", 2),
    text("FTTnum", 20),   yesNo("Gravid"),          yesNo("MI"),
    yesNo("Hipotyroidi"), yesNo("Ulcus"),           yesNo("DM"),
    yesNo("Feokroma"),    yesNo("Epilepsi"),        yesNo("Anoroksi"),
    yesNo("MAO"),         text("Pastillness", 200), text("height", 8),
    text("final", 2),     date("finaldate")};
constexpr std::array smokeIndexes{primaryKey("sm_num"), plainIndex("PrimaryKey1", "name")};

constexpr std::array smokeControlFields{
    autoNumber("smc_num"), number("sm_num"),      date("createtime"), date("edittime"),
    date("date"),          text("FVC", 20),       text("FEV1", 20),   text("PEF", 20),
    text("CO", 20),        text("complain", 250), text("exam", 250),  text("systol", 4),
    text("diastol", 4),    text("pulse", 4),      text("weight", 8),  text("note", 200)};
constexpr std::array smokeControlIndexes{primaryKey("smc_num")};

constexpr std::array testFields{autoNumber("test_num"), text("Test", 50), text("Unit", 15),
                                text("Min", 10),        text("Max", 10),  integer("number")};
constexpr std::array testIndexes{primaryKey("test_num"), plainIndex("PrimaryKey1", "Test"),
                                 plainIndex("PrimaryKey2", "number")};

constexpr std::array resuldFields{autoNumber("res_num"), number("sm_num"),   number("smc_num"),
                                  number("test_num"),    text("Resuld", 30), date("createtime"),
                                  date("edittime"),      date("date")};
constexpr std::array resuldIndexes{primaryKey("res_num"), plainIndex("PrimaryKey1", "test_num")};

constexpr std::array drugFields{autoNumber("drug_num"), text("drug", 50), text("dosage", 100),
                                text("number", 10), text("note", 250)};
constexpr std::array drugIndexes{primaryKey("drug"), plainIndex("PrimaryKey1", "drug_num")};

constexpr std::array prescriptionFields{autoNumber("presc_num"), number("sm_num"),
                                        number("smc_num"),       number("drug_num"),
                                        text("dosage", 100),     text("number", 10)};
constexpr std::array prescriptionIndexes{primaryKey("presc_num"),
                                         plainIndex("PrimaryKey1", "drug_num")};

constexpr std::array sideEffectFields{autoNumber("se_num"), text("se", 50), text("therapy", 100),
                                      text("note", 250)};
constexpr std::array sideEffectIndexes{primaryKey("se"), plainIndex("PrimaryKey1", "se_num")};

constexpr std::array secFields{autoNumber("sec_num"), number("sm_num"), number("smc_num"),
                               number("se_num"), text("therapy", 100)};
constexpr std::array secIndexes{primaryKey("sec_num"), plainIndex("PrimaryKey1", "se_num")};

constexpr std::array intervalFields{autoNumber("inter_num"), integer("count"), number("day")};
constexpr std::array intervalIndexes{primaryKey("inter_num")};

// In the order of creation.
constexpr std::array smokingTables{
    dao::TableDef{"Smoke", smokeFields, smokeIndexes, {}},
    dao::TableDef{"Smoke_Control", smokeControlFields, smokeControlIndexes, trialHelpers},
    dao::TableDef{"Test", testFields, testIndexes, {}},
    dao::TableDef{"Resuld", resuldFields, resuldIndexes, trialHelpers},
    dao::TableDef{"Drug", drugFields, drugIndexes, {}},
    dao::TableDef{"prescription", prescriptionFields, prescriptionIndexes, trialHelpers},
    dao::TableDef{"Side_Effect", sideEffectFields, sideEffectIndexes, {}},
    dao::TableDef{"sec", secFields, secIndexes, trialHelpers},
    dao::TableDef{"interval", intervalFields, intervalIndexes, {}},
};

}  // namespace

Schema smokingSchema() {
  return smokingTables;
}

}  // namespace stores
