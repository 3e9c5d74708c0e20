// What a new store consists of, and how an incomplete one is completed.
#include <array>
#include <optional>

#include "stores/clinical_schema.h"
#include "stores/personal_schema.h"
#include "stores/smoking_schema.h"
#include "stores/smoking_store.h"
#include "tests/stores/stores_fixture.h"

namespace stores {
namespace {

using dao::AutoIncrement;
using dao::FieldType;
using dao::Primary;
using dao::Unique;
using dao::ZeroLength;

// Says what is different, or nothing.
std::string compare(const dao::FieldInfo& found, const dao::FieldDef& wanted) {
  if (found.name != wanted.name) return found.name + " stands for " + std::string(wanted.name);
  if (found.type != wanted.type) return found.name + " has another type";
  if (found.size != wanted.size) return found.name + " has another width";
  if (found.zeroLength != wanted.zeroLength && wanted.type == FieldType::Text)
    return found.name + " has another rule for the empty text";
  return found.autoIncrement == wanted.autoIncrement ? "" : found.name + " counts otherwise";
}

std::string compare(const dao::IndexInfo& found, const dao::IndexDef& wanted) {
  const bool same = found.name == wanted.name &&
                    found.fields == std::vector<std::string>{std::string(wanted.fields)} &&
                    found.primary == wanted.primary && found.unique == wanted.unique;
  return same ? "" : found.name + " is another index";
}

template <class Found, class Wanted>
void expectSame(const dao::Result<std::vector<Found>>& found, std::span<const Wanted> wanted) {
  ASSERT_TRUE(found);
  ASSERT_EQ(found->size(), wanted.size());
  for (std::size_t row = 0; row < wanted.size(); ++row)
    EXPECT_EQ(compare((*found)[row], wanted[row]), "");
}

void expectSchema(const dao::Database& database, Schema schema,
                  dao::Order order = dao::Order::General) {
  ASSERT_TRUE(database.isOpen());
  EXPECT_EQ(database.order(), order);
  EXPECT_EQ(database.tables().value().size(), schema.size());
  for (const dao::TableDef& table : schema) {
    SCOPED_TRACE(table.name);
    expectSame(database.fields(table.name), table.fields);
    expectSame(database.indexes(table.name), table.indexes);
  }
}

using SchemaTest = StoresTest;

TEST_F(SchemaTest, AnEmptyFolderGetsBothStores) {
  open();
  expectSchema(stores_.personal.database, personalSchema());
  expectSchema(stores_.clinical.database, clinicalSchema());
  EXPECT_EQ(stores_.personal.database.tables()->size(), 12u);
  EXPECT_EQ(stores_.clinical.database.tables()->size(), 23u);
  EXPECT_TRUE(stores_.settings.has_value());
  EXPECT_TRUE(cards().empty());
}

// Independent of the definitions: what the files of a practice have always held.
TEST_F(SchemaTest, FieldsAreWhatThePracticesFilesHold) {
  struct Case {
    std::string_view table;
    std::size_t position;
    std::size_t fields;
    dao::FieldInfo field;
  };
  const std::array cases{
      Case{"IDCard", 0, 34, {"Key", FieldType::Text, 2, ZeroLength::Allowed, AutoIncrement::No}},
      Case{"IDCard", 1, 34, {"Name", FieldType::Text, 40, ZeroLength::Refused, AutoIncrement::No}},
      Case{"IDCard", 24, 34, {"Notes", FieldType::Text, 255, ZeroLength::Allowed}},
      Case{"IDCard", 33, 34, {"Photo", FieldType::Text, 255, ZeroLength::Allowed}},
      Case{"Company", 0, 1, {"Company", FieldType::Text, 30, ZeroLength::Allowed}},
      Case{"Referance", 0, 1, {"Referance", FieldType::Text, 40, ZeroLength::Allowed}},
      Case{"Appointment", 3, 6, {"Explanation", FieldType::Text, 70, ZeroLength::Allowed}},
      Case{"Appointment", 5, 6, {"OK", FieldType::Byte}},
      Case{"Account", 0, 10, {"ac_num", FieldType::Long, 0, {}, AutoIncrement::Yes}},
      Case{"Account", 1, 10, {"name", FieldType::Text, 25, ZeroLength::Allowed}},
      Case{"Account", 4, 10, {"lean", FieldType::Text, 20, ZeroLength::Allowed}},
      Case{"Financier", 1, 7, {"financier", FieldType::Text, 40, ZeroLength::Refused}},
      Case{"Invoice", 4, 5, {"document", FieldType::Text, 15, ZeroLength::Allowed}},
  };
  open();
  for (const Case& wanted : cases) {
    SCOPED_TRACE(std::string(wanted.table) + "." + wanted.field.name);
    const auto fields = stores_.personal.database.fields(wanted.table);
    ASSERT_TRUE(fields);
    ASSERT_EQ(fields->size(), wanted.fields);
    const dao::FieldInfo& found = (*fields)[wanted.position];
    EXPECT_EQ(found.name, wanted.field.name);
    EXPECT_EQ(found.type, wanted.field.type);
    EXPECT_EQ(found.size, wanted.field.size);
    EXPECT_EQ(found.autoIncrement, wanted.field.autoIncrement);
    if (found.type == FieldType::Text) {
      EXPECT_EQ(found.zeroLength, wanted.field.zeroLength);
    }
  }
}

TEST_F(SchemaTest, IndexesAreWhatThePracticesFilesHold) {
  open();
  const auto cardIndexes = stores_.personal.database.indexes("IDCard");
  ASSERT_TRUE(cardIndexes);
  ASSERT_EQ(cardIndexes->size(), 1u);
  EXPECT_EQ((*cardIndexes)[0].name, "PrimaryKey");
  EXPECT_EQ((*cardIndexes)[0].fields, std::vector<std::string>{"Name"});
  EXPECT_EQ((*cardIndexes)[0].primary, Primary::Yes);
  const auto financier = stores_.personal.database.indexes("Financier");
  ASSERT_TRUE(financier);
  ASSERT_EQ(financier->size(), 2u);
  EXPECT_EQ((*financier)[1].name, "PrimaryKey1");
  EXPECT_EQ((*financier)[1].unique, Unique::No);
  EXPECT_TRUE(stores_.personal.database.indexes("Appointment").value().empty());
  const auto visit = stores_.clinical.database.indexes("Visit");
  ASSERT_TRUE(visit);
  ASSERT_EQ(visit->size(), 1u);
  EXPECT_EQ((*visit)[0].fields, std::vector<std::string>{"spname"});
}

TEST_F(SchemaTest, EveryTableThatIsMissingComesBackAndTheOthersKeepTheirRows) {
  for (const dao::TableDef& lost : personalSchema()) {
    SCOPED_TRACE(lost.name);
    open();
    const std::string patient = "Ayşe " + std::string(lost.name);
    const bool keepsCards = lost.name != "IDCard";
    ASSERT_TRUE(addCard(patient));
    ASSERT_TRUE(add(stores_.personal.Financier, "financier", "Kurum " + std::string(lost.name)));
    const std::int64_t payers = stores_.personal.Financier.RecordCount();
    ASSERT_TRUE(stores_.personal.database.dropTable(lost.name));
    CloseStores(stores_);
    open();
    expectSchema(stores_.personal.database, personalSchema());
    EXPECT_EQ(holds(cards(), patient), keepsCards);
    EXPECT_EQ(stores_.personal.Financier.RecordCount(), lost.name == "Financier" ? 0 : payers);
  }
}

TEST_F(SchemaTest, TheSmokingStoreIsMadeOnItsOwnAndComparesByTurkishRules) {
  open();
  EXPECT_FALSE(hasSmokingStore(stores_.folder));
  EXPECT_EQ(OpenSmokingStore(stores_.folder).error().fault(), dao::Fault::Missing);
  ASSERT_TRUE(CreateSmokingStore(stores_.folder));
  auto smoking = OpenSmokingStore(stores_.folder);
  ASSERT_TRUE(smoking);
  expectSchema(smoking->database, smokingSchema(), dao::Order::Turkish);
  const auto tables = smoking->database.tables().value();
  EXPECT_EQ(tables, (std::vector<std::string>{"Smoke", "Smoke_Control", "Test", "Resuld", "Drug",
                                              "prescription", "Side_Effect", "sec", "interval"}));
  const std::array<std::size_t, 9> widths{23, 16, 6, 8, 5, 6, 4, 5, 3};
  for (std::size_t table = 0; table < tables.size(); ++table)
    EXPECT_EQ(smoking->database.fields(tables[table])->size(), widths[table]) << tables[table];
  EXPECT_EQ(add(smoking->Smoke, "name", "").fault(), dao::Fault::ZeroLength);
  ASSERT_TRUE(add(smoking->Smoke, "name", "İNCİ IŞIK"));
  ASSERT_TRUE(smoking->Smoke.Index("PrimaryKey1"));
  EXPECT_TRUE(holds(smoking->Smoke, "inci ışık"));
  EXPECT_FALSE(holds(smoking->Smoke, "inci işik"));
  ASSERT_TRUE(add(smoking->Drug, "drug", "bant"));
  EXPECT_EQ(add(smoking->Drug, "drug", "BANT").fault(), dao::Fault::Exists);
  ASSERT_TRUE(smoking->database.dropTable("sec"));
  EXPECT_TRUE(OpenSmokingStore(stores_.folder)) << "completed";
}

// Names with apostrophes and misspellings are what the screens ask for.
TEST_F(SchemaTest, ClinicalFieldsAreFoundUnderTheirOddNames) {
  open();
  const dao::Value longText(std::string(1'000'000, 'x') + "ğ");
  struct Case {
    dao::Recordset& table;
    std::string_view field;
    dao::Value value;
  };
  Case cases[] = {
      {stores_.clinical.Operation, "anes'thetist1", "Dr. Öz"},
      {stores_.clinical.Gravid, "baby's name", "Ece"},
      {stores_.clinical.Echo, "Left V çıkış Yolu", std::string(255, 'y')},
      {stores_.clinical.PhysicalExam, "Therapy", longText},
      {stores_.clinical.Visit, "Visit numbers", longText},
  };
  for (Case& wanted : cases) {
    SCOPED_TRACE(wanted.field);
    ASSERT_TRUE(wanted.table.AddNew());
    const bool ledger = &wanted.table == &stores_.clinical.Visit;
    ASSERT_TRUE(ledger ? wanted.table.Fields("Spname").Set(std::string(80, 'k'))
                       : wanted.table.Fields("Count").Set(1));
    ASSERT_TRUE(wanted.table.Fields(wanted.field).Set(wanted.value));
    ASSERT_TRUE(wanted.table.Update());
    ASSERT_TRUE(wanted.table.MoveFirst());
    EXPECT_EQ(wanted.table.Fields(wanted.field).Value(), wanted.value);
  }
}

TEST_F(SchemaTest, AClinicalTableThatIsMissingComesBackEmpty) {
  open();
  ASSERT_TRUE(add(stores_.clinical.Doctors, "Doctor", "Dr. Işık"));
  ASSERT_TRUE(add(stores_.clinical.Lens, "Count", 7));
  ASSERT_TRUE(stores_.clinical.database.dropTable("Lens"));
  CloseStores(stores_);
  open();
  expectSchema(stores_.clinical.database, clinicalSchema());
  EXPECT_TRUE(stores_.clinical.Lens.empty());
  EXPECT_TRUE(holds(stores_.clinical.Doctors, "Dr. Işık"));
}

TEST_F(SchemaTest, OpeningAgainChangesNothing) {
  open();
  ASSERT_TRUE(addCard("Işıl Çağlar"));
  CloseStores(stores_);
  const std::string before = bytesOf(folder_ / personalPath);
  open();
  CloseStores(stores_);
  EXPECT_TRUE(bytesOf(folder_ / personalPath) == before);
}

TEST_F(SchemaTest, ReopeningCreatesNothing) {
  EXPECT_EQ(ReopenPersonalStore(stores_).fault(), dao::Fault::Missing);
  EXPECT_FALSE(std::filesystem::exists(folder_ / personalPath));
}

TEST_F(SchemaTest, ReopeningKeepsTheRowsAndPositionsEveryTableByItsKey) {
  open();
  ASSERT_TRUE(addCard("Ömer Ünal"));
  ASSERT_TRUE(add(stores_.personal.Job, "Job", "Şef"));
  ASSERT_TRUE(ReopenPersonalStore(stores_));
  EXPECT_TRUE(holds(cards(), "ömer ünal"));
  EXPECT_TRUE(holds(stores_.personal.Job, "Şef"));
}

}  // namespace
}  // namespace stores
