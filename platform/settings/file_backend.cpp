#include "platform/settings/file_backend.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/files/atomic_write.h"
#include "platform/files/range_lock.h"
#include "platform/settings/settings_text.h"

namespace settings {
namespace {

using platform::Fault;
using platform::Result;
using platform::Status;
using std::filesystem::path;

path beside(path name, std::string_view suffix) {
  name += suffix;
  return name;
}

bool isSame(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
         a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

Result<std::string> readAll(const files::Descriptor& file, const path& name) {
  std::string text;
  std::array<char, 16384> buffer{};
  for (;;) {
    const ssize_t got = ::read(file.number(), buffer.data(), buffer.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return std::unexpected(files::systemFault(name, errno));
    if (got == 0) return text;
    text.append(buffer.data(), static_cast<std::size_t>(got));
  }
}

// One writer at a time among all handles of all processes.
class Turn {
 public:
  static Result<Turn> take(const path& settings) {
    const path name = beside(settings, ".lock");
    auto file = files::Descriptor::openFile(name, O_RDWR | O_CREAT, files::Links::Followed,
                                            files::privateMode);
    if (!file) return std::unexpected(file.error());
    // The place at the head of the queue: without it a writer that writes again at once would be
    // there before those who look for their turn only every now and then.
    const auto next = files::ScopedRangeLock::take(*file, name, {1, 1});
    if (!next) return std::unexpected(next.error());
    auto lock = files::ScopedRangeLock::take(*file, name, {0, 1});
    if (!lock) return std::unexpected(lock.error());
    return Turn{std::move(*file), std::move(*lock)};
  }

 private:
  Turn(files::Descriptor file, files::ScopedRangeLock lock)
      : file_(std::move(file)), lock_(std::move(lock)) {}

  files::Descriptor file_;
  files::ScopedRangeLock lock_;
};

}  // namespace

bool FileBackend::isChanged() const {
  if (!loaded_) return true;
  struct stat now = {};
  const bool exists = ::stat(path_.c_str(), &now) == 0;
  if (!exists || !seen_) return exists != seen_.has_value();
  return !isSame(now, seen_->state);
}

// Opens the file as it is now; no file is no fault.
Status FileBackend::remember() {
  seen_.reset();
  loaded_ = true;
  auto file = files::Descriptor::openFile(path_, O_RDONLY, files::Links::Followed);
  if (!file && file.error().fault() == Fault::Missing) return {};
  if (!file) return file.error();
  Seen seen{std::move(*file), {}};
  if (::fstat(seen.file.number(), &seen.state) != 0) return files::systemFault(path_, errno);
  seen_ = std::move(seen);
  return {};
}

Result<std::string> FileBackend::read() {
  if (Status status = remember(); !status) return std::unexpected(status);
  if (!seen_) return std::string{};
  return readAll(seen_->file, path_);
}

Result<Values> FileBackend::load() {
  const auto text = read();
  if (!text) return std::unexpected(text.error());
  if (auto values = fromText(*text)) return std::move(*values);
  const auto turn = Turn::take(path_);
  if (!turn) return std::unexpected(turn.error());
  return loadOrSetAside();
}

// In turn: what was damaged a moment ago may have been set aside by another station since.
Result<Values> FileBackend::loadOrSetAside() {
  const auto text = read();
  if (!text) return std::unexpected(text.error());
  if (auto values = fromText(*text)) return std::move(*values);
  const path copy = beside(path_, ".damaged");
  if (::rename(path_.c_str(), copy.c_str()) != 0) {
    return std::unexpected(files::systemFault(path_, errno));
  }
  return std::unexpected(
      Status{Fault::Damaged, path_.string() + " is damaged and was kept as " + copy.string()});
}

Result<Values> FileBackend::update(const Change& change) {
  const auto turn = Turn::take(path_);
  if (!turn) return std::unexpected(turn.error());
  auto values = loadOrSetAside();
  if (!values || change(*values) == Edit::Same) return values;
  if (Status status = store(*values); !status) return std::unexpected(status);
  return values;
}

Status FileBackend::store(const Values& values) {
  if (Status status =
          files::writeAtomically(path_, toText(values), files::Links::Followed, files::privateMode);
      !status)
    return status;
  return remember();
}

}  // namespace settings
