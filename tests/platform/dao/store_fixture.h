// A store in a temporary folder, with the tables that the tests need.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/dao/database.h"

namespace dao {

inline constexpr std::array kCardFields{
    FieldDef{.name = "Key", .size = 2, .zeroLength = ZeroLength::Allowed},
    FieldDef{.name = "Name", .size = 40},
    FieldDef{.name = "Date of Birth", .type = FieldType::Date},
    FieldDef{.name = "Notes", .size = 255, .zeroLength = ZeroLength::Allowed},
};
inline constexpr std::array kByName{IndexDef{
    .name = "PrimaryKey", .fields = "Name", .primary = Primary::Yes, .unique = Unique::Yes}};
inline constexpr std::array kCardHelpers{
    HelperDef{.kind = HelperIndex::PrefixSearchTurkish, .field = "Name", .extraField = "Key"},
    HelperDef{.kind = HelperIndex::PrefixSearchGeneral, .field = "Name", .extraField = "Key"}};
inline constexpr TableDef kCards{"IDCard", kCardFields, kByName, kCardHelpers};

inline constexpr std::array kFinancierFields{
    FieldDef{.name = "finance_num", .type = FieldType::Long, .autoIncrement = AutoIncrement::Yes},
    FieldDef{.name = "financier", .size = 40},
};
inline constexpr std::array kFinancierIndexes{
    IndexDef{.name = "PrimaryKey",
             .fields = "finance_num",
             .primary = Primary::Yes,
             .unique = Unique::Yes},
    IndexDef{.name = "PrimaryKey1", .fields = "financier"}};
inline constexpr TableDef kFinanciers{"Financier", kFinancierFields, kFinancierIndexes};

// The key is a text, and a number counts beside it.
inline constexpr std::array kDrugFields{
    FieldDef{.name = "drug_num", .type = FieldType::Long, .autoIncrement = AutoIncrement::Yes},
    FieldDef{.name = "drug", .size = 50, .zeroLength = ZeroLength::Allowed},
};
inline constexpr std::array kDrugIndexes{
    IndexDef{
        .name = "PrimaryKey", .fields = "drug", .primary = Primary::Yes, .unique = Unique::Yes},
    IndexDef{.name = "PrimaryKey1", .fields = "drug_num"}};
inline constexpr TableDef kDrugs{"Drug", kDrugFields, kDrugIndexes};

// Every type, a number as the key, a plain helper on the name.
inline constexpr std::array kExamFields{
    FieldDef{.name = "Count", .type = FieldType::Long},
    FieldDef{.name = "Name", .size = 40, .zeroLength = ZeroLength::Allowed},
    FieldDef{.name = "Date", .type = FieldType::Date},
    FieldDef{.name = "Speciality", .type = FieldType::Integer},
    FieldDef{.name = "OK", .type = FieldType::Byte},
    FieldDef{.name = "Smoke", .type = FieldType::Boolean},
    FieldDef{.name = "Height", .type = FieldType::Double},
    FieldDef{.name = "Fee", .type = FieldType::Currency},
    FieldDef{.name = "History", .type = FieldType::Memo, .zeroLength = ZeroLength::Allowed},
};
inline constexpr std::array kByCount{IndexDef{
    .name = "PrimaryKey", .fields = "Count", .primary = Primary::Yes, .unique = Unique::Yes}};
inline constexpr std::array kExamHelpers{HelperDef{.field = "Name"}};
inline constexpr TableDef kExams{"Physical Exam", kExamFields, kByCount, kExamHelpers};

inline constexpr std::array kAppointmentFields{
    FieldDef{.name = "Name", .size = 40, .zeroLength = ZeroLength::Allowed},
    FieldDef{.name = "OK", .type = FieldType::Byte},
};
inline constexpr TableDef kAppointments{"Appointment", kAppointmentFields};

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "daoXXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

class StoreTest : public testing::Test {
 protected:
  explicit StoreTest(Order order = Order::General) : path_(folder_ / "Personal.mdb") {
    store_ = CreateDatabase(path_, order).value();
    auto transaction = store_.beginTransaction().value();
    for (const TableDef& table : {kCards, kFinanciers, kDrugs, kExams, kAppointments}) {
      EXPECT_TRUE(store_.appendTable(table));
    }
    EXPECT_TRUE(transaction.commit());
  }

  Recordset table(std::string_view name) { return store_.OpenRecordset(name).value(); }
  static Status addTo(Recordset& rows, std::string_view field, const Value& value) {
    Status status = rows.AddNew();
    if (status) status = rows.Fields(field).Set(value);
    return status ? rows.Update() : status;
  }
  void addCards(const std::vector<std::string>& names) {
    Recordset cards = table("IDCard");
    for (const std::string& name : names) ASSERT_TRUE(addTo(cards, "Name", name)) << name;
  }
  // The values of a field from where the recordset stands to the end.
  static std::vector<std::string> rest(Recordset& rows, std::string_view field) {
    std::vector<std::string> values;
    for (; !rows.Eof(); rows.MoveNext().ignore()) values.push_back(rows.Fields(field).text());
    return values;
  }
  std::vector<std::string> all(std::string_view source, std::string_view field) {
    Recordset rows = store_.OpenRecordset(source).value();
    return rest(rows, field);
  }

  TemporaryFolder folder_;
  std::filesystem::path path_;
  Database store_;
};

using Texts = std::vector<std::string>;

// "card 00007": as many digits as keep the order of the numbers.
inline std::string numbered(int number) {
  const std::string digits = std::to_string(number);
  return "card " + std::string(5 - digits.size(), '0') + digits;
}

}  // namespace dao
