// The register of the running stations, Data/net.dat: a slot for each of them, with the patient on
// its card. A slot belongs to its station as long as that runs: the lock on it vanishes with a
// crashed process, and its patient is free at once.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files/net_record.h"
#include "platform/files/process_lock.h"
#include "platform/files/record_file.h"
#include "platform/status/status.h"

namespace shell {

class StationRegister {
 public:
  static constexpr long mostStations = 999;

  enum class Company { Alone, Others };
  // Tells whether any station of the folder runs, a crashed one apart. Alone, the file is emptied,
  // and nobody else gets in before letIn(). Busy while another station stays alone for longer than
  // the patience; Unsupported where the file system knows no locks.
  [[nodiscard]] platform::Result<Company> open(
      const std::string& folder, std::chrono::milliseconds patience = files::lockPatience);
  [[nodiscard]] bool isOpen() const { return file_.has_value(); }

  // From being one of several: whether this station is the only one, and stays so until letIn().
  [[nodiscard]] platform::Result<bool> tryAlone();
  void letIn();
  // Whether another station runs, or may run as far as can be told.
  [[nodiscard]] bool hasCompany();

  // Gives the slot back, and deletes the file when no other station is left.
  void close();

  // Keeps what other stations do to the register out of what is done here. The register must stay
  // open for the life of the lock.
  [[nodiscard]] platform::Result<files::ScopedRangeLock> lock(
      std::chrono::milliseconds patience = files::lockPatience) const;

  // Takes the first slot that belongs to no running station. Its number, counting from 1.
  [[nodiscard]] platform::Result<long> takeSlot(
      std::chrono::milliseconds patience = files::lockPatience);
  [[nodiscard]] long slot() const { return slot_; }  // 0 without one

  // The rest is called under lock().

  // The slot of the other running station that has a patient of that name on its card; 0 for none.
  [[nodiscard]] platform::Result<long> whereElse(std::string_view name) const;
  [[nodiscard]] platform::Result<bool> isElsewhere(std::string_view name) const;
  [[nodiscard]] platform::Result<files::NetRecord> own() const;
  [[nodiscard]] platform::Status writeOwn(const files::NetRecord& record);
  // Tells all other stations that the appointment book has changed.
  [[nodiscard]] platform::Status flagOthers();

 private:
  [[nodiscard]] platform::Result<files::NetRecord> read(long slot) const;
  [[nodiscard]] platform::Result<long> slotCount() const;
  [[nodiscard]] bool isRunning(long slot) const;

  std::string path_;
  std::optional<files::ProcessLock> company_;
  std::optional<files::RecordFile> file_;
  std::optional<files::ScopedRangeLock> hold_;  // on the own slot; goes before the file
  long slot_ = 0;
};

// A patient's name as a slot holds it: as it comes back from 40 bytes of the Turkish code page.
// Names that this would make alike keep a number that tells them apart.
[[nodiscard]] std::string slotName(std::string_view name);

}  // namespace shell
