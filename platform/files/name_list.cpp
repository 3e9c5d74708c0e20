#include "platform/files/name_list.h"

#include <algorithm>

#include "platform/files/record_file.h"
#include "platform/text/utf8.h"

namespace files {
namespace {

using platform::Result;
using platform::Status;

constexpr std::size_t nameWidth = 30;

Result<std::vector<std::string>> readAll(const RecordFile& file, long count) {
  std::vector<std::string> names;
  for (long number = 1; number <= count; ++number) {
    const auto record = file.get(number);
    if (!record) return std::unexpected(record.error());
    names.push_back(text::trim(record->buffer.textAt(0, nameWidth)));
  }
  return names;
}

}  // namespace

Result<std::vector<std::string>> readNames(const std::filesystem::path& path) {
  const auto file = RecordFile::open(path, nameWidth);
  if (!file) return std::unexpected(file.error());
  const auto count = file->count();
  if (!count) return std::unexpected(count.error());
  auto names = readAll(*file, *count);
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
  const auto count = file->count();
  if (!count) return count.error();
  const auto names = readAll(*file, *count);
  if (!names) return names.error();
  if (std::ranges::find(*names, kept) != names->end()) return {};
  return file->put(*count + 1, buffer);
}

}  // namespace files
