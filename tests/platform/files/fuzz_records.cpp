// Fuzzing: the records of the files that stations share, from any bytes. Reading takes everything,
// and what was read is written back as it was.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/files/message_file.h"
#include "platform/files/name_list.h"
#include "platform/files/net_record.h"
#include "platform/files/setting_record.h"

namespace {

void require(bool sound) {
  if (!sound) std::abort();
}

template <class Layout>
void survives(const std::string& bytes) {
  const Layout record = Layout::decode(files::RecordBuffer{bytes});
  std::string whole = bytes;
  whole.resize(Layout::length, '\0');
  require(record.encode().bytes() == whole);
}

void filesSurvive(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  const auto messages = files::readMessages(path);
  require(messages && messages->size() == bytes.size() / files::MessageRecord::length);
  for (const files::Message& message : *messages)
    require(message.record.isSameNote(message.record));
  require(files::changeMessages(path, *messages, [](files::MessageRecord& record) {
            record.isRead = 1;
          }).ok());
  require(files::readNames(path).has_value());
  require(files::addName(path, bytes).ok());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::filesystem::path path =
      std::filesystem::temp_directory_path() / ("fuzz-records-" + std::to_string(::getpid()));
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  survives<files::NetRecord>(bytes);
  survives<files::SettingRecord>(bytes);
  survives<files::MessageRecord>(bytes);
  filesSurvive(path, bytes);
  return 0;
}
