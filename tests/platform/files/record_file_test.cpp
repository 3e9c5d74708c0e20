#include "platform/files/record_file.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/platform/files/child_process.h"
#include "tests/platform/files/full_disk.h"
#include "tests/platform/files/temporary_folder.h"
#include "tests/support/ordinary_user.h"

namespace {

using files::Extent;
using files::RecordBuffer;
using files::RecordFile;
using platform::Fault;
using namespace std::string_literals;

RecordBuffer record(std::string bytes) {
  return RecordBuffer{std::move(bytes)};
}

TEST(RecordBuffer, KeepsNumbersLittleEndian) {
  const struct {
    std::int16_t value;
    std::string bytes;
  } cases[] = {{0, "\0\0"s},         {1, "\1\0"s},        {-1, "\xff\xff"s},    {256, "\0\1"s},
               {32767, "\xff\x7f"s}, {-32768, "\0\x80"s}, {0x1234, "\x34\x12"s}};
  for (const auto& c : cases) {
    RecordBuffer buffer{4};
    buffer.setInt16(1, c.value);
    EXPECT_EQ(buffer.bytes(), "\0"s + c.bytes + "\0"s);
    EXPECT_EQ(buffer.int16At(1), c.value);
  }
}

TEST(RecordBuffer, KeepsFlagsAsSixteenBits) {
  RecordBuffer buffer{2};
  buffer.setFlag(0, true);
  EXPECT_EQ(buffer.bytes(), "\xff\xff"s);
  EXPECT_TRUE(buffer.flagAt(0));
  EXPECT_TRUE(record("\1\0"s).flagAt(0));
  buffer.setFlag(0, false);
  EXPECT_EQ(buffer.bytes(), "\0\0"s);
}

TEST(RecordBuffer, PadsTextsWithBlanks) {
  RecordBuffer buffer{8};
  buffer.setText(1, 6, "Şık");
  EXPECT_EQ(buffer.bytes(), "\0\xde\xfdk   \0"s);
  EXPECT_EQ(buffer.textAt(1, 6), "Şık");
  buffer.setText(1, 6, "Gülşenciğim");
  EXPECT_EQ(buffer.bytes(),
            "\0G\xfcl\xfe"
            "en\0"s);
  buffer.setText(1, 6, "");
  EXPECT_EQ(buffer.bytes(), "\0      \0"s);
}

TEST(RecordBuffer, LeavesBlanksAndNulsOffAtTheEndOnly) {
  EXPECT_EQ(record(" a b \0 \0"s).textAt(0, 8), " a b");
  EXPECT_EQ(record("\0\0\0"s).textAt(0, 3), "");
  EXPECT_EQ(record("   "s).textAt(0, 3), "");
  EXPECT_EQ(record("a\0b\0"s).textAt(0, 4), "a\0b"s);
}

TEST(RecordFile, StoresRecordsAtTheirPlaces) {
  const TemporaryFolder folder;
  auto file = RecordFile::open(folder / "a.dat", 4);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->count(), 0);
  EXPECT_TRUE(file->put(3, record("cccc")));
  EXPECT_TRUE(file->put(1, record("aaaa")));
  EXPECT_EQ(contentOf(folder / "a.dat"), "aaaa\0\0\0\0cccc"s);
  EXPECT_EQ(file->count(), 3);
  EXPECT_EQ(file->get(3)->buffer.bytes(), "cccc");
  EXPECT_TRUE(file->put(3, record("x")));
  EXPECT_EQ(contentOf(folder / "a.dat"), "aaaa\0\0\0\0xccc"s);
}

TEST(RecordFile, SaysWhatTheFileDoesNotHold) {
  const TemporaryFolder folder;
  fill(folder / "a.dat", "aaaabb");
  const auto file = RecordFile::open(folder / "a.dat", 4);
  ASSERT_TRUE(file);
  const struct {
    long number;
    std::string bytes;
    Extent extent;
  } cases[] = {{1, "aaaa", Extent::Whole},
               {2, "bb\0\0"s, Extent::Short},
               {3, "\0\0\0\0"s, Extent::Beyond},
               {1'000'000'000, "\0\0\0\0"s, Extent::Beyond}};
  for (const auto& c : cases) {
    const auto got = file->get(c.number);
    ASSERT_TRUE(got);
    EXPECT_EQ(got->buffer.bytes(), c.bytes);
    EXPECT_EQ(got->extent, c.extent);
  }
  EXPECT_EQ(file->count(), 2);
}

TEST(RecordFile, RefusesNumbersThatCannotBe) {
  const TemporaryFolder folder;
  auto file = RecordFile::open(folder / "a.dat", 4);
  ASSERT_TRUE(file);
  for (const long number : {0L, -1L, std::numeric_limits<long>::max()}) {
    EXPECT_EQ(file->get(number).error().fault(), Fault::Missing);
    EXPECT_EQ(file->put(number, record("aaaa")).fault(), Fault::Missing);
  }
  EXPECT_EQ(file->put(1, record("aaaaa")).fault(), Fault::TooLong);
  EXPECT_EQ(contentOf(folder / "a.dat"), "");
}

TEST(RecordFile, HandlesSeeEachOthersRecords) {
  const TemporaryFolder folder;
  auto one = RecordFile::open(folder / "a.dat", 4);
  auto two = RecordFile::open(folder / "a.dat", 4);
  ASSERT_TRUE(one && two);
  EXPECT_TRUE(one->put(2, record("1111")));
  EXPECT_EQ(two->get(2)->buffer.bytes(), "1111");
  EXPECT_TRUE(two->put(2, record("2222")));
  EXPECT_EQ(one->get(2)->buffer.bytes(), "2222");
}

TEST(RecordFile, ReadsAFileThatItCannotWrite) {
  const TemporaryFolder folder;
  std::filesystem::permissions(folder.path(), std::filesystem::perms{0755});
  fill(folder / "a.dat", "aaaa");
  std::filesystem::permissions(folder / "a.dat", std::filesystem::perms{0444});
  const support::OrdinaryUser user;
  auto file = RecordFile::open(folder / "a.dat", 4);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->get(1)->buffer.bytes(), "aaaa");
  EXPECT_EQ(file->put(1, record("bbbb")).fault(), Fault::ReadOnly);
  EXPECT_EQ(file->lock(1).error().fault(), Fault::ReadOnly);
}

TEST(RecordFile, SaysWhyItCannotOpen) {
  const TemporaryFolder folder;
  std::filesystem::permissions(folder.path(), std::filesystem::perms{0555});
  EXPECT_EQ(RecordFile::open(folder / "none/a.dat", 4).error().fault(), Fault::Missing);
  const auto directory = RecordFile::open(folder.path(), 4);
  EXPECT_EQ(directory.error().fault(), Fault::NotAFile);
  EXPECT_NE(directory.error().text().find(folder.path().string()), std::string::npos);
  const support::OrdinaryUser user;
  EXPECT_EQ(RecordFile::open(folder / "a.dat", 4).error().fault(), Fault::ReadOnly);
}

TEST(RecordFile, SaysThatTheDiskIsFull) {
  const TemporaryFolder folder;
  auto file = RecordFile::open(folder / "a.dat", 4);
  ASSERT_TRUE(file);
  const FullDisk full(2);
  EXPECT_EQ(file->put(2, record("aaaa")).fault(), Fault::DiskFull);
}

TEST(RecordFile, LocksOneRecordForOneHandle) {
  const TemporaryFolder folder;
  const auto one = RecordFile::open(folder / "a.dat", 4);
  const auto two = RecordFile::open(folder / "a.dat", 4);
  ASSERT_TRUE(one && two);
  constexpr std::chrono::milliseconds atOnce{0};
  {
    const auto held = one->lock(2);
    ASSERT_TRUE(held);
    EXPECT_EQ(two->lock(2, atOnce).error().fault(), Fault::Busy);
    EXPECT_EQ(two->lockAll(atOnce).error().fault(), Fault::Busy);
    EXPECT_TRUE(two->lock(1, atOnce));
    EXPECT_TRUE(two->lock(3, atOnce));
    EXPECT_TRUE(two->get(2));
  }
  EXPECT_TRUE(two->lock(2, atOnce));
}

bool countUp(const std::filesystem::path& path, int times) {
  auto file = RecordFile::open(path, 4);
  for (int i = 0; file && i < times; ++i) {
    const auto lock = file->lock(1);
    if (!lock) return false;
    auto record = file->get(1);
    record->buffer.setInt16(0, static_cast<std::int16_t>(record->buffer.int16At(0) + 1));
    if (!file->put(1, record->buffer)) return false;
  }
  return file.has_value();
}

TEST(RecordFile, NoIncrementIsLostBetweenProcesses) {
  const TemporaryFolder folder;
  const auto path = folder / "a.dat";
  {
    ChildProcess one([&] { return countUp(path, 300); });
    ChildProcess two([&] { return countUp(path, 300); });
    EXPECT_TRUE(countUp(path, 300));
    EXPECT_TRUE(one.succeeded());
    EXPECT_TRUE(two.succeeded());
  }
  EXPECT_EQ(RecordFile::open(path, 4)->get(1)->buffer.int16At(0), 900);
}

}  // namespace
