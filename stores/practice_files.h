// The files of a practice beside its stores: letterhead, settings of the pages, names, documents
// and pictures. A backup keeps them in a folder of its own, in the places that they have here.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "platform/dao/database.h"
#include "stores/progress.h"

namespace stores {

// Below the folder of the backup.
inline constexpr auto backupFilesFolder = "Files";

struct PracticeFile {
  std::filesystem::path name;  // from the program's folder, or from the folder above
  std::int64_t bytes = 0;
  std::filesystem::file_time_type written;
};
// The letterhead, setting.dat and List.dat of `Data`, and all that lies below `Documents` and
// `Image`. Links are passed over, and the folder `except`, wherever it lies.
[[nodiscard]] std::vector<PracticeFile> practiceFiles(const std::filesystem::path& root,
                                                      const std::filesystem::path& except = {});

// What became of copying them. A file that cannot be copied does not hold up the others.
struct FileCopies {
  std::int64_t copied = 0;
  std::int64_t failed = 0;
  dao::Status fault;  // of the first that failed
};
// The files of one root as they stand to those of another: by size and time.
struct FileComparison {
  std::vector<PracticeFile> missing;  // in the other root
  std::vector<PracticeFile> older;    // there
  std::vector<PracticeFile> newer;
  std::vector<PracticeFile> same;
};
[[nodiscard]] FileComparison compareFiles(std::span<const PracticeFile> files,
                                          const std::filesystem::path& other);

// Both write each file beside its place, compare it with its source, and rename it; never through a
// link that leads out of the other root. They end early when the disk is full or the work was
// stopped; what was copied by then stays. Progress counts bytes.

// Brings what is new or has changed in the practice into the backup, and anew what was damaged
// there; takes nothing out of it. Lists what is there.
[[nodiscard]] dao::Status backUpFiles(const std::filesystem::path& programFolder,
                                      const std::filesystem::path& into, FileCopies& copies,
                                      const Progress& progress = {});
// A file that is not as the list of the backup tells fails as Damaged.
[[nodiscard]] dao::Status restoreFiles(const std::filesystem::path& backup,
                                       const std::filesystem::path& programFolder,
                                       std::span<const PracticeFile> files, FileCopies& copies,
                                       const Progress& progress = {});

// The files of a backup as they stand to its list; one that is not listed is only counted.
struct FileCheck {
  std::int64_t files = 0;
  std::int64_t damaged = 0;
  std::int64_t missing = 0;  // listed, and not there
};
// Reads them all. Other when the work was stopped; progress counts the bytes of each file.
[[nodiscard]] dao::Result<FileCheck> checkFiles(const std::filesystem::path& backup,
                                                const Progress& progress = {});

// How many pictures and clips the records name that do not lie where practiceFiles() looks.
[[nodiscard]] dao::Result<std::int64_t> picturesElsewhere(
    const std::filesystem::path& programFolder);

}  // namespace stores
