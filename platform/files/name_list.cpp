#include "platform/files/name_list.h"

#include <algorithm>

#include "platform/files/record_file.h"
#include "platform/text/utf8.h"

namespace files {
namespace {

using platform::Fault;
using platform::Result;
using platform::Status;

constexpr std::size_t nameWidth = 30;

Result<std::vector<std::string>> readAll(const RecordFile& file) {
  const auto records = file.all(mostNames);
  if (!records) return std::unexpected(records.error());
  std::vector<std::string> names;
  for (const Record& record : *records)
    names.push_back(text::trim(record.buffer.textAt(0, nameWidth)));
  return names;
}

Status noRoom(const std::filesystem::path& path) {
  return {Fault::TooLarge, path.string() + ": the list of names is full."};
}

}  // namespace

Result<std::vector<std::string>> readNames(const std::filesystem::path& path) {
  const auto file = RecordFile::open(path, nameWidth);
  if (!file) return std::unexpected(file.error());
  auto names = readAll(*file);
  if (names) std::erase(*names, std::string{});
  return names;
}

Status addName(const std::filesystem::path& path, std::string_view name) {
  RecordBuffer buffer{nameWidth};
  buffer.setText(0, nameWidth, text::trimmed(name));
  const std::string kept = text::trim(keptText(text::trimmed(name), nameWidth));
  if (kept.empty()) return {};
  auto file = RecordFile::open(path, nameWidth);
  if (!file) return file.error();
  const auto lock = file->lockAll();
  if (!lock) return lock.error();
  const auto names = readAll(*file);
  if (!names) return names.error();
  if (std::ranges::find(*names, kept) != names->end()) return {};
  const auto count = static_cast<long>(names->size());
  return count < mostNames ? file->put(count + 1, buffer) : noRoom(path);
}

}  // namespace files
