#include "tests/platform/dao/store_fixture.h"

namespace dao {
namespace {

using FieldTest = StoreTest;

std::string repeated(std::string_view character, int count) {
  std::string text;
  for (int each = 0; each < count; ++each) text += character;
  return text;
}

TEST_F(FieldTest, WidthIsCountedInCharacters) {
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.AddNew());
  EXPECT_TRUE(cards.Fields("Name").Set(repeated("ş", 40)));
  const Status tooLong = cards.Fields("name").Set(repeated("ş", 41));
  EXPECT_EQ(tooLong.fault(), Fault::TooLong);
  EXPECT_EQ(tooLong.text(), "IDCard.Name holds at most 40 characters.");
  ASSERT_TRUE(cards.Update());
  EXPECT_EQ(all("IDCard", "Name"), Texts{repeated("ş", 40)});
}

struct Assignment {
  std::string_view field;
  Value value;
  Fault fault;
  std::string stored;
};

TEST_F(FieldTest, TypesAreTestedOnAssignment) {
  const text::DateTime day = text::DateTime::of(2026, 11, 22);
  const std::array cases{
      Assignment{"Date", day, Fault::None, "2026-11-22"},
      Assignment{"Date", "2026-11-22", Fault::None, "2026-11-22"},
      Assignment{"Date", text::DateTime::of(2026, 11, 22, 50700), Fault::None,
                 "2026-11-22 14:05:00"},
      Assignment{"Date", "soon", Fault::WrongType, ""},
      Assignment{"Date", Value(), Fault::None, ""},
      Assignment{"Speciality", 32767, Fault::None, "32767"},
      Assignment{"Speciality", 32768, Fault::WrongType, ""},
      Assignment{"Speciality", " 12 ", Fault::None, "12"},
      Assignment{"Speciality", "12 years", Fault::WrongType, ""},
      Assignment{"Speciality", "", Fault::WrongType, ""},
      Assignment{"Speciality", 2.5, Fault::None, "2"},
      Assignment{"Speciality", day, Fault::WrongType, ""},
      Assignment{"OK", 255, Fault::None, "255"},
      Assignment{"OK", -1, Fault::WrongType, ""},
      Assignment{"Smoke", -1, Fault::None, "1"},
      Assignment{"Smoke", 0, Fault::None, "0"},
      Assignment{"Height", 1.75, Fault::None, "1.75"},
      Assignment{"Height", "1.75", Fault::None, "1.75"},
      Assignment{"Name", 7, Fault::None, "7"},
      Assignment{"History", std::string(5000, 'x'), Fault::None, std::string(5000, 'x')},
  };
  Recordset exams = table("Physical Exam");
  int number = 0;
  for (const Assignment& each : cases) {
    ASSERT_TRUE(exams.AddNew());
    ASSERT_TRUE(exams.Fields("Count").Set(++number));
    EXPECT_EQ(exams.Fields(each.field).Set(each.value).fault(), each.fault) << number;
    ASSERT_TRUE(exams.Update());
    ASSERT_TRUE(exams.SetBookmark(exams.LastModified()));
    EXPECT_EQ(exams.Fields(each.field).text(), each.stored) << number;
  }
}

TEST_F(FieldTest, ADateComesBackAsADate) {
  const text::DateTime moment = text::DateTime::of(1999, 2, 28, 3600);
  Recordset exams = table("Physical Exam");
  ASSERT_TRUE(exams.AddNew());
  ASSERT_TRUE(exams.Fields("Count").Set(1));
  ASSERT_TRUE(exams.Fields("Date").Set(moment));
  ASSERT_TRUE(exams.Update());
  ASSERT_TRUE(exams.MoveFirst());
  EXPECT_EQ(exams.Fields("Date").Value(), Value(moment));
  EXPECT_EQ(exams.Fields("Date").Value().date(), moment);
}

TEST_F(FieldTest, EveryCharacterIsStoredWhole) {
  using namespace std::string_literals;
  const std::array texts{"a\0b"s,
                         "\x01\x1F"s,
                         "it's \"quoted\""s,
                         "; DROP TABLE IDCard --"s,
                         "\xF0\x9F\x98\x80"s,
                         "line\r\nline"s,
                         "\0"s};
  Recordset cards = table("IDCard");
  for (const std::string& text : texts) {
    ASSERT_TRUE(cards.AddNew());
    ASSERT_TRUE(cards.Fields("Name").Set("patient"));
    ASSERT_TRUE(cards.Fields("Notes").Set(text));
    ASSERT_TRUE(cards.Update());
    ASSERT_TRUE(cards.MoveFirst());
    EXPECT_EQ(cards.Fields("Notes").text(), text);
    EXPECT_EQ(cards.Fields("Notes").Value(), Value(text));
    ASSERT_TRUE(cards.Delete());
  }
}

TEST_F(FieldTest, TextThatIsNoUtf8IsRepaired) {
  Recordset cards = table("IDCard");
  ASSERT_TRUE(addTo(cards, "Name", "Ay\xFE"));
  ASSERT_TRUE(cards.MoveFirst());
  EXPECT_EQ(cards.Fields("Name").text(), "Ay\uFFFD");
  ASSERT_TRUE(cards.Seek("=", "Ay\xFE"));
  EXPECT_FALSE(cards.NoMatch());
}

TEST_F(FieldTest, AnEmptyTextIsNotNull) {
  Recordset cards = table("IDCard");
  ASSERT_TRUE(cards.AddNew());
  ASSERT_TRUE(cards.Fields("Name").Set("a"));
  ASSERT_TRUE(cards.Fields("Key").Set(""));
  ASSERT_TRUE(cards.Update());
  ASSERT_TRUE(cards.MoveFirst());
  EXPECT_FALSE(cards.Fields("Key").isNull());
  EXPECT_TRUE(cards.Fields("Notes").isNull());
}

TEST(Value, ReadsNumbersOutOfTexts) {
  EXPECT_EQ(Value(" 12abc").integer(), 12);
  EXPECT_EQ(Value("1.5").real(), 1.5);
  EXPECT_EQ(Value(-2.9).integer(), -2);
  EXPECT_EQ(Value(1e300).integer(), INT64_MAX);
  EXPECT_EQ(Value().integer(), 0);
  EXPECT_EQ(Value().text(), "");
  EXPECT_EQ(Value(0.1).text(), "0.1");
  EXPECT_EQ(Value("x").date(), std::nullopt);
}

}  // namespace
}  // namespace dao
