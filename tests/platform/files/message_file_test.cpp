#include "platform/files/message_file.h"

#include <gtest/gtest.h>

#include "tests/platform/files/child_process.h"
#include "tests/platform/files/temporary_folder.h"

namespace {

using files::Message;
using files::MessageRecord;
using files::RecordBuffer;
using platform::Fault;

MessageRecord note(const std::string& subject) {
  MessageRecord record;
  record.sender = "Işık";
  record.addressee = "Ayşe";
  record.subject = subject;
  record.isNew = 1;
  return record;
}

std::vector<std::string> subjectsIn(const std::filesystem::path& path) {
  std::vector<std::string> subjects;
  const auto messages = files::readMessages(path).value();
  for (const Message& message : messages) subjects.push_back(message.record.subject);
  return subjects;
}

using Subjects = std::vector<std::string>;

TEST(MessageRecord, HasItsFieldsAtTheirOffsets) {
  std::string bytes(384, ' ');
  bytes.replace(0, 4, "I\xfe\xfdk");
  bytes.replace(30, 4,
                "Ay\xfe"
                "e");
  bytes.replace(60, 5, "Konu.");
  bytes.replace(110, 16, "22.11.2026 14:05");
  bytes.replace(130, 8, "Bir\r\niki");
  bytes.replace(380, 4, std::string("\1\0\0\0", 4));
  const auto record = MessageRecord::decode(RecordBuffer{bytes});
  EXPECT_EQ(record.sender, "Işık");
  EXPECT_EQ(record.addressee, "Ayşe");
  EXPECT_EQ(record.subject, "Konu.");
  EXPECT_EQ(record.sent, "22.11.2026 14:05");
  EXPECT_EQ(record.text, "Bir\r\niki");
  EXPECT_EQ(record.isNew, 1);
  EXPECT_EQ(record.isRead, 0);
  MessageRecord same = note("Konu.");
  same.sent = record.sent;
  same.text = record.text;
  EXPECT_EQ(same.encode().bytes(), bytes);
  EXPECT_TRUE(same.isSameNote(record));
  const std::string blank = std::string(380, ' ') + std::string(4, '\0');
  EXPECT_EQ(MessageRecord().encode().bytes(), blank);
  EXPECT_EQ(MessageRecord::decode(RecordBuffer{std::string(384, '\0')}).text, "");
}

TEST(MessageFile, CutsWhatIsTooWideAndPassesOverATornEnd) {
  const TemporaryFolder folder;
  const auto path = folder / "message.dat";
  EXPECT_TRUE(files::readMessages(path)->empty());
  ASSERT_TRUE(files::sendMessage(path, note(std::string(60, 'x'))));
  fill(path, contentOf(path) + "torn");
  EXPECT_EQ(subjectsIn(path), Subjects{std::string(50, 'x')});
  ASSERT_TRUE(files::sendMessage(path, note("next")));
  EXPECT_EQ(subjectsIn(path), (Subjects{std::string(50, 'x'), "next"}));
}

TEST(MessageFile, FindsTheNoteThatADeletionHasMoved) {
  const TemporaryFolder folder;
  const auto path = folder / "message.dat";
  for (const char* subject : {"a", "b", "c"}) ASSERT_TRUE(files::sendMessage(path, note(subject)));
  const auto listed = *files::readMessages(path);
  ASSERT_TRUE(files::deleteMessage(path, listed[0]));
  ASSERT_TRUE(files::changeMessages(path, {&listed[2], 1},
                                    [](MessageRecord& record) { record.isRead = 1; }));
  EXPECT_EQ(files::readMessages(path)->back().record.isRead, 1);
  EXPECT_EQ(files::readMessages(path)->front().record.isRead, 0);
  EXPECT_TRUE(files::deleteMessage(path, listed[2]));
  EXPECT_EQ(files::deleteMessage(path, listed[0]).fault(), Fault::Missing);
  EXPECT_EQ(subjectsIn(path), Subjects{"b"});
  EXPECT_TRUE(files::deleteAllMessages(path));
  EXPECT_TRUE(files::readMessages(path)->empty());
}

TEST(MessageFile, NothingSentWhileAnotherStationDeletesIsLost) {
  const TemporaryFolder folder;
  const auto path = folder / "message.dat";
  constexpr int each = 60;
  const auto sendMany = [&](const std::string& prefix) {
    bool ok = true;
    for (int i = 0; i < each; ++i)
      ok = ok && files::sendMessage(path, note(prefix + std::to_string(i)));
    return ok;
  };
  ChildProcess one([&] { return sendMany("one"); });
  ChildProcess two([&] { return sendMany("two"); });
  // Sends and takes out again, so that the file is replaced all the time.
  for (int i = 0; i < each; ++i) {
    const Message mine{1, note("mine" + std::to_string(i))};
    ASSERT_TRUE(files::sendMessage(path, mine.record));
    ASSERT_TRUE(files::deleteMessage(path, mine));
  }
  EXPECT_TRUE(one.succeeded());
  EXPECT_TRUE(two.succeeded());
  EXPECT_EQ(subjectsIn(path).size(), 2U * each);
}

TEST(MessageFile, SaysWhyItFails) {
  const TemporaryFolder folder;
  EXPECT_EQ(files::sendMessage(folder / "no/message.dat", note("a")).fault(), Fault::Missing);
  EXPECT_EQ(files::readMessages(folder / "no/message.dat").error().fault(), Fault::Missing);
}

}  // namespace
