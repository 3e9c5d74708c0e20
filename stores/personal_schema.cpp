#include "stores/personal_schema.h"

#include <array>

namespace stores {

namespace {

constexpr std::array idCardFields{text("Key", 2),
                                  filledText("Name", 40),
                                  date("Date of Birth"),
                                  text("Year of Birth", 4),
                                  text("Sex", 15),
                                  text("Blood Group", 10),
                                  text("Place of Birth", 40),
                                  text("Profession", 30),
                                  text("Mothers Name", 25),
                                  text("Fathers Name", 25),
                                  text("Address1", 75),
                                  text("Address2", 75),
                                  text("Address3", 75),
                                  text("Address4", 75),
                                  text("email", 50),
                                  text("Telephone1", 20),
                                  text("Telephone2", 20),
                                  text("Mobil", 20),
                                  text("Fax", 20),
                                  text("Company", 75),
                                  text("Personnel", 40),
                                  text("Personnel Number", 50),
                                  text("Relationship", 20),
                                  text("Job", 30),
                                  text("Notes", 255),
                                  text("Adressing", 20),
                                  text("Referance", 40),
                                  text("ID Number", 75),
                                  date("Option1"),
                                  text("Option2", 50),
                                  text("Option3", 50),
                                  text("Option4", 50),
                                  text("Option5", 50),
                                  text("Photo", 255)};
constexpr std::array idCardIndexes{primaryKey("Name")};
constexpr std::array placeOfBirthFields{text("Place Of Birth", 40)};
constexpr std::array placeOfBirthIndexes{primaryKey("Place Of Birth")};
constexpr std::array professionFields{text("Profession", 30)};
constexpr std::array professionIndexes{primaryKey("Profession")};
constexpr std::array companyFields{text("Company", 30)};
constexpr std::array companyIndexes{primaryKey("Company")};
constexpr std::array jobFields{text("Job", 30)};
constexpr std::array jobIndexes{primaryKey("Job")};
constexpr std::array relationshipFields{text("Relationship", 30)};
constexpr std::array relationshipIndexes{primaryKey("Relationship")};
constexpr std::array adressingFields{text("Adressing", 20)};
constexpr std::array adressingIndexes{primaryKey("Adressing")};
constexpr std::array referanceFields{text("Referance", 40)};
constexpr std::array referanceIndexes{primaryKey("Referance")};
constexpr std::array appointmentFields{text("Name", 40),        date("Date"),      text("Time", 10),
                                       text("Explanation", 70), text("Phone", 20), byte("OK")};
constexpr std::array accountFields{
    autoNumber("ac_num"),    text("name", 25),     date("date"),
    date("edittime"),        text("lean", 20),     text("credit", 20),
    text("explanation", 50), text("take_fee", 40), number("finance_num"),
    number("invoice_num")};
constexpr std::array accountIndexes{primaryKey("ac_num")};
constexpr std::array financierFields{autoNumber("finance_num"), filledText("financier", 40),
                                     text("address", 100),      text("telephone", 15),
                                     text("tax_office", 40),    text("tax_number", 40),
                                     text("discount", 10)};
constexpr std::array financierIndexes{primaryKey("finance_num"),
                                      plainIndex("PrimaryKey1", "financier")};
constexpr std::array invoiceFields{autoNumber("invoice_num"), number("finance_num"), date("date"),
                                   date("edittime"), text("document", 15)};
constexpr std::array invoiceIndexes{primaryKey("invoice_num")};

// Search as you type finds names by their folded beginning, and passes over hidden patients by the
// key mark.
constexpr std::array idCardHelpers{
    dao::HelperDef{dao::HelperIndex::PrefixSearchTurkish, "Name", "Key"},
    dao::HelperDef{dao::HelperIndex::PrefixSearchGeneral, "Name", "Key"}};

// In the order of creation.
constexpr std::array personalTables{
    dao::TableDef{"IDCard", idCardFields, idCardIndexes, idCardHelpers},
    dao::TableDef{"Place Of Birth", placeOfBirthFields, placeOfBirthIndexes, {}},
    dao::TableDef{"Profession", professionFields, professionIndexes, {}},
    dao::TableDef{"Company", companyFields, companyIndexes, {}},
    dao::TableDef{"Job", jobFields, jobIndexes, {}},
    dao::TableDef{"Relationship", relationshipFields, relationshipIndexes, {}},
    dao::TableDef{"Adressing", adressingFields, adressingIndexes, {}},
    dao::TableDef{"Referance", referanceFields, referanceIndexes, {}},
    dao::TableDef{"Appointment", appointmentFields, {}, {}},
    dao::TableDef{"Account", accountFields, accountIndexes, {}},
    dao::TableDef{"Financier", financierFields, financierIndexes, {}},
    dao::TableDef{"Invoice", invoiceFields, invoiceIndexes, {}},
};

}  // namespace

Schema personalSchema() {
  return personalTables;
}

}  // namespace stores
