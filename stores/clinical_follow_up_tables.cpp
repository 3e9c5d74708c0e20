#include "stores/clinical_tables.h"

#include <array>

namespace stores::clinical {

namespace {

constexpr std::array persantilFields{
    longText("Physical Exam"), longText("Advice"),    text("Name", 40),  date("Date"),
    number("Count"),           integer("Speciality"), text("Weight", 8), text("Height", 8),
    text("Head", 8),           text("Chest", 8),      text("Abdomen", 8)};
constexpr std::array persantilIndexes{primaryKey("Count")};

constexpr std::array vaccineFields{text("Name", 40),      date("Date"),       number("Count"),
                                   integer("Speciality"), text("Vaccin", 50), text("Firm", 50),
                                   text("Note", 150)};
constexpr std::array vaccineIndexes{primaryKey("Count")};

constexpr std::array gravidFields{text("Name", 40),
                                  date("Date"),
                                  date("LM Date"),
                                  text("Date of Married", 10),
                                  date("Date of Operation"),
                                  number("Count"),
                                  integer("Speciality"),
                                  text("H Blood Group", 10),
                                  text("G", 2),
                                  text("P", 2),
                                  text("Y", 2),
                                  text("A", 2),
                                  text("C", 2),
                                  text("Alchol", 20),
                                  text("Smoke", 20),
                                  text("Drug", 20),
                                  text("XR", 20),
                                  text("Inter Marriage", 30),
                                  text("Past Illness", 250),
                                  text("Family History", 250),
                                  text("Operation Note", 255),
                                  text("operation", 3),
                                  text("Baby's name", 20),
                                  text("Address", 100)};
constexpr std::array gravidIndexes{primaryKey("Count")};

constexpr std::array gravidControlFields{longText("Complain"),  longText("Physical Exam"),
                                         longText("Test"),      longText("Advice"),
                                         text("Name", 40),      date("Date"),
                                         text("Fee", 20),       number("Count"),
                                         integer("Speciality"), text("operation", 15)};
constexpr std::array gravidControlIndexes{primaryKey("Count")};

constexpr std::array motorFields{longText("motortxt"), text("Name", 40)};
constexpr std::array motorIndexes{primaryKey("Name")};

constexpr std::array lensFields{text("Eye", 10),   text("number", 10),     text("Name", 40),
                                date("Date"),      text("Doctor", 40),     text("Fee", 20),
                                number("Count"),   integer("Speciality"),  text("Firm", 50),
                                text("Lens", 50),  text("Dioptr", 10),     text("Diameter", 10),
                                text("Color", 20), text("Cost price", 30), text("Price", 30)};
constexpr std::array lensIndexes{primaryKey("Count")};

constexpr std::array lensStockFields{
    text("Firm", 50),     text("Lens", 50),  text("Dioptr", 10),
    text("Diameter", 10), text("Color", 20), text("Cost price", 30),
    text("Price", 30),    text("Stock", 20), number("Count")};
constexpr std::array lensStockIndexes{primaryKey("Count")};

}  // namespace

const dao::TableDef persantil{"Persantil", persantilFields, persantilIndexes, recordHelpers};
const dao::TableDef vaccine{"Vaccine", vaccineFields, vaccineIndexes, recordHelpers};
const dao::TableDef gravid{"Gravid", gravidFields, gravidIndexes, recordHelpers};
const dao::TableDef gravidControl{"Gravid Control", gravidControlFields, gravidControlIndexes,
                                  recordHelpers};
const dao::TableDef motor{"Motor", motorFields, motorIndexes, {}};
const dao::TableDef lens{"Lens", lensFields, lensIndexes, recordHelpers};
const dao::TableDef lensStock{"Lens Stock", lensStockFields, lensStockIndexes, {}};

}  // namespace stores::clinical
