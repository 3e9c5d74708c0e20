#include "platform/settings/file_backend.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <utility>

#include "platform/files/atomic_write.h"
#include "platform/files/range_lock.h"
#include "platform/files/read_file.h"
#include "platform/files/replace.h"
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

// What was kept before is not lost for the next one, as far as there is a name for it.
path freeName(const path& settings) {
  constexpr int mostKept = 9;
  path name = beside(settings, ".damaged");
  std::error_code unknown;
  for (int number = 2; number <= mostKept && std::filesystem::exists(name, unknown); ++number)
    name = beside(settings, ".damaged" + std::to_string(number));
  return name;
}

Status damaged(const path& settings, const path& kept) {
  return {Fault::Damaged, settings.string() + " is damaged and was kept as " + kept.string()};
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

FileBackend::FileBackend(path path, std::vector<Place> guarded)
    : path_(std::move(path)), guard_(beside(path_, ".protected"), std::move(guarded)) {}

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
  return files::readOpen(seen_->file, path_, largest);
}

Result<Values> FileBackend::load() {
  const auto text = read();
  if (!text && text.error().fault() != Fault::TooLarge) return std::unexpected(text.error());
  ReadSettings found = text ? fromText(*text) : ReadSettings();
  if (found.whole) return std::move(found.values);
  const auto turn = Turn::take(path_);
  if (turn) {
    auto mended = loadOrMend();
    if (mended || mended.error().fault() == Fault::Damaged) return mended;
  }
  if (!text) return std::unexpected(text.error());
  return std::move(found.values);
}

// In turn: what was damaged a moment ago may have been mended by another station since.
Result<Values> FileBackend::loadOrMend() {
  const auto text = read();
  if (!text && text.error().fault() != Fault::TooLarge) return std::unexpected(text.error());
  ReadSettings found = text ? fromText(*text) : ReadSettings();
  if (found.whole) return std::move(found.values);
  const path kept = freeName(files::behindLinks(path_));
  const Status aside =
      text ? files::writeAtomically(kept, *text, files::Links::Refused, files::privateMode)
           : setAside(kept);
  if (!aside) return std::unexpected(aside);
  if (Status stored = store(found.values); !stored) return std::unexpected(stored);
  return std::unexpected(damaged(path_, kept));
}

// A file too large to be read is not copied either.
Status FileBackend::setAside(const path& kept) {
  (void)::fchmod(seen_->file.number(), files::privateMode);
  const path target = files::behindLinks(path_);
  return ::rename(target.c_str(), kept.c_str()) == 0 ? Status{} : files::systemFault(target, errno);
}

Result<Values> FileBackend::update(const Change& change) {
  const auto turn = Turn::take(path_);
  if (!turn) return std::unexpected(turn.error());
  auto values = loadOrMend();
  if (!values) return values;
  const Values before = *values;
  if (change(*values) == Edit::Changed) {
    guard_.forget(before, *values);
    if (Status status = store(*values); !status) return std::unexpected(status);
  }
  guard_.remember(*values);
  return values;
}

// A file that others could read until now gets a new one in its place that they cannot.
Status FileBackend::store(const Values& values) {
  const std::string text = toText(values);
  if (text.size() > largest)
    return {Fault::TooLarge, path_.string() + ": the settings are too large."};
  if (seen_) (void)::fchmod(seen_->file.number(), files::privateMode);
  const Status status =
      files::writeAtomically(path_, text, files::Links::Followed, files::privateMode);
  return status ? remember() : status;
}

}  // namespace settings
