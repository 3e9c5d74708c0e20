#include "shell/station_register.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include "platform/files/checksum.h"
#include "platform/text/codepage.h"
#include "platform/text/utf8.h"
#include "stores/store_kinds.h"

namespace shell {

namespace {

using files::NetRecord;
using files::ProcessLock;
using files::RecordFile;
using platform::Fault;
using platform::Result;
using platform::Status;
using std::chrono::milliseconds;

constexpr auto registerFile = "Data/net.dat";
// Behind all slots: the lock on it stands for the register as a whole.
constexpr long wholeRegister = StationRegister::mostStations + 1;
constexpr std::ptrdiff_t nameWidth = 40;

// The same in every station, whatever machine it runs on.
std::uint64_t fingerprint(std::string_view text) {
  return files::checksum(text);
}

}  // namespace

std::string slotName(std::string_view name) {
  const std::string trimmed = text::trim(name);
  std::string held = text::fromTurkishCodePage(text::toTurkishCodePage(trimmed));
  if (held == trimmed && static_cast<std::ptrdiff_t>(text::length(held)) <= nameWidth) return held;
  std::array<char, 18> number{};
  std::snprintf(number.data(), number.size(), "#%016llx",
                static_cast<unsigned long long>(fingerprint(trimmed)));
  return text::left(held, nameWidth - 17) + number.data();
}

Result<StationRegister::Company> StationRegister::open(const std::string& folder,
                                                       milliseconds patience) {
  close();
  path_ = folder + registerFile;
  auto company = ProcessLock::open(path_);
  if (!company) return std::unexpected(company.error());
  const auto alone = company->tryAlone();
  if (!alone) return std::unexpected(alone.error());
  if (*alone) {
    company->empty().ignore();  // what a crashed station left is overwritten slot by slot
  } else if (const Status shared = company->share(patience); !shared) {
    return std::unexpected(shared);
  }
  auto file = RecordFile::open(path_, NetRecord::length);
  if (!file) return std::unexpected(file.error());
  // Whoever may open the stores may open the register.
  file->shareLike(stores::dataFile(folder, stores::personalKind));
  company_.emplace(std::move(*company));
  file_.emplace(std::move(*file));
  return *alone ? Company::Alone : Company::Others;
}

Result<bool> StationRegister::tryAlone() {
  if (!company_) return std::unexpected(Status(Fault::NoCurrent, path_));
  return company_->tryAlone();
}

// Whoever holds the file already is not kept waiting for it.
void StationRegister::letIn() {
  if (company_) company_->share(milliseconds{0}).ignore();
}

bool StationRegister::hasCompany() {
  const bool alone = tryAlone() == true;
  if (alone) letIn();
  return !alone;
}

void StationRegister::close() {
  if (slot_ > 0) {
    const auto guard = lock();
    writeOwn(NetRecord()).ignore();
  }
  slot_ = 0;
  hold_.reset();
  file_.reset();
  if (company_ && company_->tryAlone() == true) company_->removeFile();
  company_.reset();
}

Result<files::ScopedRangeLock> StationRegister::lock(milliseconds patience) const {
  if (!file_) return std::unexpected(Status(Fault::NoCurrent, path_));
  return file_->lock(wholeRegister, patience);
}

Result<long> StationRegister::takeSlot(milliseconds patience) {
  const auto guard = lock(patience);
  if (!guard) return std::unexpected(guard.error());
  for (long slot = 1; slot <= mostStations; ++slot) {
    auto mine = file_->lock(slot, milliseconds{0});
    if (!mine && mine.error().fault() == Fault::Busy) continue;
    if (!mine) return std::unexpected(mine.error());
    NetRecord record;
    record.used = 1;
    if (const Status written = file_->put(slot, record.encode()); !written)
      return std::unexpected(written);
    hold_.emplace(std::move(*mine));
    return slot_ = slot;
  }
  return std::unexpected(Status(Fault::Other, path_));
}

Result<long> StationRegister::whereElse(std::string_view name) const {
  const std::string wanted = slotName(name);
  const auto count = slotCount();
  if (!count) return std::unexpected(count.error());
  for (long slot = 1; slot <= *count && !wanted.empty(); ++slot) {
    if (slot == slot_) continue;
    const auto other = read(slot);
    if (!other) return std::unexpected(other.error());
    if (other->used != 0 && other->name == wanted && isRunning(slot)) return slot;
  }
  return 0;
}

Result<bool> StationRegister::isElsewhere(std::string_view name) const {
  const auto slot = whereElse(name);
  if (!slot) return std::unexpected(slot.error());
  return *slot > 0;
}

Result<NetRecord> StationRegister::own() const {
  return read(slot_);
}

Status StationRegister::writeOwn(const NetRecord& record) {
  if (!file_ || slot_ == 0) return {Fault::NoCurrent, path_};
  return file_->put(slot_, record.encode());
}

Status StationRegister::flagOthers() {
  const auto count = slotCount();
  if (!count) return count.error();
  for (long slot = 1; slot <= *count; ++slot) {
    auto other = read(slot);
    if (!other) return other.error();
    if (slot == slot_ || other->used == 0) continue;
    other->appointmentFlag = 1;
    if (const Status written = file_->put(slot, other->encode()); !written) return written;
  }
  return {};
}

// Whatever the length of the file is: there are no more.
Result<long> StationRegister::slotCount() const {
  const auto count = file_ ? file_->count() : Result<long>(0);
  return count ? std::min(*count, mostStations) : count;
}

Result<NetRecord> StationRegister::read(long slot) const {
  if (!file_) return std::unexpected(Status(Fault::NoCurrent, path_));
  const auto record = file_->get(slot);
  if (!record) return std::unexpected(record.error());
  return NetRecord::decode(record->buffer);
}

// Nobody else asks at the same moment, so that a slot that can be locked has lost its station.
bool StationRegister::isRunning(long slot) const {
  return !file_->lock(slot, milliseconds{0});
}

}  // namespace shell
