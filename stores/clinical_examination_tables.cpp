#include "stores/clinical_tables.h"

#include <array>

namespace stores::clinical {

namespace {

// Wide enough for the longest speciality word, a kind mark and a patient's name of 40 characters.
constexpr int ledgerKeyWidth = 80;

constexpr std::array physicalExamFields{longText("Complain"),
                                        longText("History"),
                                        longText("Past Illness"),
                                        longText("Family History"),
                                        longText("Physical Exam1"),
                                        longText("Physical Exam2"),
                                        longText("Physical Exam3"),
                                        longText("Physical Exam4"),
                                        longText("Physical Exam5"),
                                        longText("Physical Exam6"),
                                        longText("Test"),
                                        longText("Diagnosis"),
                                        longText("Therapy"),
                                        longText("Advice"),
                                        longText("Control"),
                                        longText("Option1"),
                                        text("Pulse", 8),
                                        text("Systol", 8),
                                        text("Diastol", 8),
                                        text("Fever", 8),
                                        text("Weight", 8),
                                        text("Height", 8),
                                        text("Name", 40),
                                        date("Date"),
                                        text("Doctor", 40),
                                        number("Count"),
                                        integer("Speciality"),
                                        text("Fee", 20),
                                        text("Picture1", 255),
                                        text("Picture2", 255),
                                        text("Picture3", 255),
                                        text("Picture4", 255),
                                        text("Picture5", 255),
                                        text("Picture6", 255),
                                        text("Mov", 255),
                                        text("Eye1", 20),
                                        text("Eye2", 20),
                                        text("Eye3", 20),
                                        text("Eye4", 20),
                                        text("Eye5", 20),
                                        text("Eye6", 20),
                                        text("Eye7", 20),
                                        text("Eye8", 20),
                                        text("Eye9", 20),
                                        text("Eye10", 20),
                                        integer("Marital status"),
                                        text("Menarche", 10),
                                        text("LMD", 10),
                                        text("Menstrual period", 20),
                                        text("Dismenore", 20),
                                        text("Discharge", 20),
                                        text("P", 2),
                                        text("G", 2),
                                        text("Y", 2),
                                        text("A", 2),
                                        text("C", 2),
                                        text("Other", 250),
                                        text("HT", 1),
                                        text("DM", 1),
                                        text("HL", 1),
                                        text("Smoke", 1),
                                        text("Stress", 1),
                                        text("ECG", 250),
                                        text("Tele", 250)};
constexpr std::array physicalExamIndexes{primaryKey("Count")};
// The lists of a day find its examinations by their date.
constexpr std::array examHelpers{dao::HelperDef{dao::HelperIndex::Plain, "Name"},
                                 dao::HelperDef{dao::HelperIndex::Plain, "Date"}};

constexpr std::array doctorsFields{text("Key", 2), text("Doctor", 40)};
constexpr std::array doctorsIndexes{primaryKey("Doctor")};

constexpr std::array drugFields{longText("Prospectus"), text("Drog", 100), text("Dosage", 100),
                                text("number", 30)};
constexpr std::array drugIndexes{primaryKey("Drog")};

constexpr std::array testsFields{text("Test", 100), text("Min", 10), text("Max", 10),
                                 text("Unit", 10), text("Information", 200)};
constexpr std::array testsIndexes{primaryKey("Test")};

constexpr std::array visitFields{longText("Visit Numbers"), text("spname", ledgerKeyWidth),
                                 number("Visit Count"), date("Last Visit Date")};
constexpr std::array visitIndexes{primaryKey("spname")};

constexpr std::array analyzeFields{text("Name", 40),    date("Date"),          text("Doctor", 40),
                                   number("Count"),     integer("Speciality"), text("Test", 100),
                                   text("result", 100), text("Unit", 10),      text("Min", 10),
                                   text("Max", 10),     text("Fee", 20)};
constexpr std::array analyzeIndexes{primaryKey("Count")};

}  // namespace

const dao::TableDef physicalExam{"Physical Exam", physicalExamFields, physicalExamIndexes,
                                 examHelpers};
const dao::TableDef doctors{"Doctors", doctorsFields, doctorsIndexes, {}};
const dao::TableDef drug{"drug", drugFields, drugIndexes, {}};
const dao::TableDef tests{"Tests", testsFields, testsIndexes, {}};
const dao::TableDef visit{"Visit", visitFields, visitIndexes, {}};
const dao::TableDef analyze{"Analyze", analyzeFields, analyzeIndexes, recordHelpers};

}  // namespace stores::clinical
