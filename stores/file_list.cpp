#include "stores/file_list.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <string_view>

#include "platform/files/atomic_write.h"
#include "platform/files/checksum.h"
#include "platform/files/folders.h"
#include "platform/files/read_file.h"
#include "stores/store_kinds.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestList = std::size_t{32} << 20U;

std::string hex(std::uint64_t number) {
  std::array<char, 16> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return {digits.data(), written.ptr};
}

// Takes the number and the blank behind it off the line.
template <typename Number>
bool takeNumber(std::string_view& line, Number& number, int base) {
  const char* end = line.data() + line.size();
  const auto [stop, error] = std::from_chars(line.data(), end, number, base);
  if (error != std::errc() || stop == end || *stop != ' ') return false;
  line.remove_prefix(static_cast<std::size_t>(stop - line.data()) + 1);
  return true;
}

void addLine(FileList& list, std::string_view line) {
  ListedFile file;
  const bool good = takeNumber(line, file.checksum, 16) && takeNumber(line, file.bytes, 10) &&
                    takeNumber(line, file.written, 10);
  if (std::string name(line); good && file.bytes >= 0 && canBeListed(name))
    list.insert_or_assign(std::move(name), file);
}

}  // namespace

std::optional<std::uint64_t> checksumOf(const fs::path& file, const Progress& progress) {
  const auto state = stateOf(file);
  if (!state) return std::nullopt;
  std::uint64_t hash = files::noBytes;
  std::int64_t done = 0;
  const auto read = files::readBlocks(file, [&](std::string_view block) {
    hash = files::checksum(block, hash);
    done += static_cast<std::int64_t>(block.size());
    return !progress || progress(done, static_cast<std::int64_t>(state->bytes));
  });
  const bool whole = read && static_cast<std::uintmax_t>(done) == state->bytes;
  return whole ? std::optional(hash) : std::nullopt;
}

std::optional<ListedFile> listed(const fs::path& file, std::uint64_t checksum) {
  const auto state = stateOf(file);
  if (!state) return std::nullopt;
  const auto written = std::chrono::file_clock::to_sys(state->written).time_since_epoch();
  return ListedFile{
      checksum, static_cast<std::int64_t>(state->bytes),
      std::int64_t{std::chrono::duration_cast<std::chrono::nanoseconds>(written).count()}};
}

bool canBeListed(const std::string& name) {
  constexpr std::size_t longest = 4096;
  const fs::path path(name);
  return !name.empty() && name.size() <= longest &&
         name.find_first_of(std::string_view("\n\0", 2)) == std::string::npos &&
         path.is_relative() && std::ranges::find(path, "..") == path.end();
}

FileList readFileList(const fs::path& folder) {
  const std::string content =
      files::readFile(folder / fileListName, longestList).value_or(std::string());
  FileList list;
  std::string_view rest = content;
  // A line without its end was cut off.
  for (std::size_t end = 0; (end = rest.find('\n')) != std::string_view::npos;) {
    addLine(list, rest.substr(0, end));
    rest.remove_prefix(end + 1);
  }
  return list;
}

platform::Status writeFileList(const fs::path& folder, const FileList& list) {
  if (platform::Status made = files::createFolders(folder); !made) return made;
  std::string content;
  for (const auto& [name, file] : list)
    content += hex(file.checksum) + ' ' + std::to_string(file.bytes) + ' ' +
               std::to_string(file.written) + ' ' + name + '\n';
  // Never through a link that leads out of the folder.
  std::error_code ignored;
  const fs::path target = folder / fileListName;
  if (fs::is_symlink(target, ignored)) fs::remove(target, ignored);
  return files::writeAtomically(target, content);
}

}  // namespace stores
