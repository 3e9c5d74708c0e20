#include <gtest/gtest.h>

#include "platform/files/net_record.h"
#include "platform/files/setting_record.h"

namespace {

using files::NetRecord;
using files::RecordBuffer;
using files::SettingRecord;
using namespace std::string_literals;

std::string padded(std::string text, std::size_t width, char pad = ' ') {
  text.resize(width, pad);
  return text;
}

std::string settingBytes() {
  std::string numbers;
  for (char i = 1; i <= 14; ++i) numbers += {i, 0};
  return padded("FrmExam", 30) + numbers + "\x07\0"s + "\x0c\0"s + "\xff\xff"s + "\0\0"s +
         "\xff\xff"s + "\0\0"s + padded("16711680", 50) + padded("Tahoma", 50) +
         padded(
             "Dr. Ay\xfe"
             "e \xdd\xf0"s,
             50) +
         padded("carried\1along", 100, '\0');
}

TEST(SettingRecord, ReadsEveryFieldAtItsOffset) {
  const auto record = SettingRecord::decode(RecordBuffer{settingBytes()});
  EXPECT_EQ(record.owner, "FrmExam");
  EXPECT_EQ(record.numbers.front(), 1);
  EXPECT_EQ(record.numbers.back(), 14);
  EXPECT_EQ(record.templateNumber, 7);
  EXPECT_EQ(record.fontSize, 12);
  EXPECT_TRUE(record.bold);
  EXPECT_FALSE(record.italic);
  EXPECT_TRUE(record.underline);
  EXPECT_FALSE(record.strikethrough);
  EXPECT_EQ(record.colour, "16711680");
  EXPECT_EQ(record.fontName, "Tahoma");
  EXPECT_EQ(record.signature, "Dr. Ayşe İğ");
}

TEST(SettingRecord, WritesEveryFieldAtItsOffset) {
  SettingRecord record;
  record.owner = "FrmExam";
  for (std::size_t i = 0; i < 14; ++i) record.numbers[i] = static_cast<std::int16_t>(i + 1);
  record.templateNumber = 7;
  record.fontSize = 12;
  record.bold = record.underline = true;
  record.colour = "16711680";
  record.fontName = "Tahoma";
  record.signature = "Dr. Ayşe İğ";
  EXPECT_EQ(record.encode().bytes(), settingBytes().substr(0, 220) + std::string(100, ' '));
}

TEST(SettingRecord, CarriesEveryByteThatNobodyChanged) {
  std::string bytes;
  for (std::size_t i = 0; i < SettingRecord::length; ++i) bytes += static_cast<char>(i * 7 + 3);
  EXPECT_EQ(SettingRecord::decode(RecordBuffer{bytes}).encode().bytes(), bytes);

  auto record = SettingRecord::decode(RecordBuffer{bytes});
  record.fontName = "Arial";
  std::string changed = bytes;
  changed.replace(120, 50, padded("Arial", 50));
  EXPECT_EQ(record.encode().bytes(), changed);
}

TEST(SettingRecord, KeepsHowOthersPadAndSayTrue) {
  std::string bytes = settingBytes();
  bytes.replace(0, 30, padded("FrmExam", 30, '\0'));
  bytes.replace(62, 2, "\1\0"s);
  auto record = SettingRecord::decode(RecordBuffer{bytes});
  record.fontSize = 14;
  bytes.replace(60, 2, "\x0e\0"s);
  EXPECT_EQ(record.encode().bytes(), bytes);
}

TEST(SettingRecord, AnEmptyRecordBelongsToNobody) {
  const auto record = SettingRecord::decode(RecordBuffer{SettingRecord::length});
  EXPECT_EQ(record.owner, "");
  EXPECT_EQ(record.fontSize, 0);
  EXPECT_EQ(record.encode().bytes(),
            std::string(30, ' ') + std::string(40, '\0') + std::string(250, ' '));
  EXPECT_EQ(SettingRecord::decode(RecordBuffer{"FrmX"s}).owner, "FrmX");
}

TEST(NetRecord, KeepsEveryFieldAtItsOffset) {
  NetRecord record;
  record.name = "Şükrü Işık";
  record.used = 1;
  record.reserved = 2;
  record.appointmentFlag = 3;
  const std::string bytes = padded("\xde\xfckr\xfc I\xfe\xfdk"s, 40) + "\1\0\2\0\3\0"s;
  EXPECT_EQ(record.encode().bytes(), padded(bytes, 128, '\0'));

  const auto read = NetRecord::decode(RecordBuffer{bytes});
  EXPECT_EQ(read.name, "Şükrü Işık");
  EXPECT_EQ(read.used, 1);
  EXPECT_EQ(read.reserved, 2);
  EXPECT_EQ(read.appointmentFlag, 3);
}

TEST(NetRecord, CarriesTheRestOfTheSlot) {
  const std::string slot = padded("x", 46) + std::string(82, '\xa5');
  auto record = NetRecord::decode(RecordBuffer{slot});
  record.name = "";
  EXPECT_EQ(record.encode().bytes(), padded("", 40) + slot.substr(40));
}

}  // namespace
