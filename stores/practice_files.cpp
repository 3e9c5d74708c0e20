#include "stores/practice_files.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <string>

#include "platform/files/copy_file.h"
#include "platform/files/folders.h"
#include "platform/files/replace.h"
#include "stores/clinical_schema.h"
#include "stores/file_list.h"
#include "stores/personal_schema.h"
#include "stores/store_kinds.h"

namespace stores {

namespace {

namespace fs = std::filesystem;
using dao::Status;

constexpr auto draftEnding = ".part";
constexpr const char* wholeFolders[] = {"Documents", "Image"};
// Some file systems keep the time to two seconds only.
constexpr std::chrono::seconds sameTime{2};

void addFile(std::vector<PracticeFile>& files, const fs::path& root,
             const fs::directory_entry& at) {
  std::error_code gone;
  if (at.is_symlink(gone) || !at.is_regular_file(gone) || at.path().extension() == draftEnding)
    return;
  PracticeFile file{at.path().lexically_relative(root),
                    static_cast<std::int64_t>(at.file_size(gone)), at.last_write_time(gone)};
  if (!gone) files.push_back(std::move(file));
}

void addDataFiles(std::vector<PracticeFile>& files, const fs::path& root) {
  std::error_code error;
  for (fs::directory_iterator at(root / "Data", error), end; !error && at != end;
       at.increment(error)) {
    const fs::path name = at->path().filename();
    if (name.stem() == "Baslik" || name == "setting.dat" || name == "List.dat")
      addFile(files, root, *at);
  }
}

void addFolder(std::vector<PracticeFile>& files, const fs::path& root, const fs::path& folder,
               const fs::path& except) {
  std::error_code error;
  if (fs::is_symlink(folder, error)) return;
  const auto options = fs::directory_options::skip_permission_denied;
  for (fs::recursive_directory_iterator at(folder, options, error), end; !error && at != end;
       at.increment(error)) {
    std::error_code other;
    if (!except.empty() && fs::equivalent(at->path(), except, other)) {
      at.disable_recursion_pending();
    } else {
      addFile(files, root, *at);
    }
  }
}

bool leadsOut(const fs::path& root, const fs::path& folder) {
  std::error_code error;
  const fs::path inner =
      fs::weakly_canonical(folder, error).lexically_relative(fs::weakly_canonical(root, error));
  return error || inner.empty() || *inner.begin() == "..";
}

// What files are copied with.
struct CopyWork {
  const fs::path& from;
  const fs::path& to;
  const FileList& expected;  // of the source
};

const ListedFile* entryOf(const FileList& list, const PracticeFile& file) {
  const auto found = list.find(file.name.string());
  return found == list.end() ? nullptr : &found->second;
}

// The draft is as its source, in content and time, and the source as its list tells.
dao::Result<std::uint64_t> makeDraft(const CopyWork& work, const fs::path& draft,
                                     const PracticeFile& file,
                                     const files::CopyProgress& progress) {
  const fs::path source = work.from / file.name;
  std::error_code error;
  fs::remove(draft, error);
  if (Status copied = files::copyFile(source, draft, progress); !copied)
    return std::unexpected(std::move(copied));
  const auto checksum = checksumOf(draft);
  if (!checksum || checksum != checksumOf(source))
    return std::unexpected(
        Status(dao::Fault::Busy, file.name.string() + ": it has changed meanwhile."));
  const ListedFile* entry = entryOf(work.expected, file);
  if (entry != nullptr && entry->checksum != *checksum)
    return std::unexpected(
        Status(dao::Fault::Damaged, file.name.string() + ": it is not as it was written."));
  files::shareLike(draft, source);
  fs::last_write_time(draft, file.written, error);
  return *checksum;
}

Status copyOne(const CopyWork& work, const PracticeFile& file, FileList& written,
               const files::CopyProgress& progress) {
  const fs::path target = work.to / file.name;
  if (leadsOut(work.to, target.parent_path()))
    return {dao::Fault::Unsupported, target.string() + ": a link leads out of the folder."};
  if (Status made = files::createFolders(target.parent_path()); !made) return made;
  fs::path draft = target;
  draft += draftEnding;
  const auto checksum = makeDraft(work, draft, file, progress);
  Status status = checksum ? files::replaceFile(draft, target) : checksum.error();
  std::error_code ignored;
  if (!status) return fs::remove(draft, ignored), status;
  if (const auto entry = listed(target, *checksum); entry && canBeListed(file.name.string()))
    written.insert_or_assign(file.name.string(), *entry);
  return status;
}

Status copyFiles(const CopyWork& work, std::span<const PracticeFile> files, FileCopies& copies,
                 FileList& written, const Progress& progress) {
  std::int64_t all = 0;
  for (const PracticeFile& file : files) all += file.bytes;
  std::int64_t before = 0;
  bool goOn = true;
  for (const PracticeFile& file : files) {
    const auto share = [&](std::int64_t done, std::int64_t) {
      return goOn = !progress || progress(std::min(before + done, all), all);
    };
    Status status = copyOne(work, file, written, share);
    if (!goOn || status.fault() == dao::Fault::DiskFull) return status;
    status ? ++copies.copied : ++copies.failed;
    if (!status && copies.failed == 1) copies.fault = status;
    before += file.bytes;
  }
  return {};
}

// A copy that somebody touched after it was written is read; what no list tells of is not trusted.
// An entry takes over the time of a copy that turns out to be good.
bool isTrusted(const PracticeFile& file, const fs::path& kept, FileList& list) {
  const auto entry = list.find(file.name.string());
  if (entry == list.end()) return !canBeListed(file.name.string());
  const auto now = listed(kept / file.name, entry->second.checksum);
  if (now == entry->second) return true;
  if (!now || now->bytes != entry->second.bytes || checksumOf(kept / file.name) != now->checksum)
    return false;
  entry->second = *now;
  return true;
}

// A file that somebody put back from elsewhere has an old date, and has changed as well.
std::vector<PracticeFile> filesToBackUp(std::span<const PracticeFile> files, const fs::path& kept,
                                        FileList& list) {
  FileComparison found = compareFiles(files, kept);
  std::vector<PracticeFile> wanted = std::move(found.missing);
  wanted.insert(wanted.end(), found.older.begin(), found.older.end());
  wanted.insert(wanted.end(), found.newer.begin(), found.newer.end());
  for (const PracticeFile& file : found.same) {
    if (!isTrusted(file, kept, list)) wanted.push_back(file);
  }
  return wanted;
}

FileList without(FileList list, std::span<const PracticeFile> files) {
  for (const PracticeFile& file : files) list.erase(file.name.string());
  return list;
}

// Columns of a table that hold paths of pictures and clips.
std::vector<std::string_view> pathColumns(const dao::TableDef& table) {
  std::vector<std::string_view> columns;
  for (const dao::FieldDef& field : table.fields) {
    if (field.name.starts_with("Picture") || field.name == "Photo" || field.name == "Mov")
      columns.push_back(field.name);
  }
  return columns;
}

void addPaths(dao::Database& store, const dao::TableDef& table, std::set<std::string>& paths) {
  for (const std::string_view column : pathColumns(table)) {
    const std::string name = "[" + std::string(column) + "]";
    auto rows = store.OpenRecordset("SELECT DISTINCT " + name + " FROM [" +
                                    std::string(table.name) + "] WHERE " + name + " <> ''");
    // An older store may lack the table.
    for (; rows && !rows->Eof(); rows->MoveNext().ignore()) paths.insert(rows->Fields(0).text());
  }
}

Status addPaths(const fs::path& file, Schema schema, std::set<std::string>& paths) {
  auto store = dao::OpenDatabase(file, {.access = dao::Access::ReadOnly});
  if (!store) return store.error();
  for (const dao::TableDef& table : schema) addPaths(*store, table, paths);
  return {};
}

bool liesInPractice(const fs::path& programFolder, const std::string& path) {
  const fs::path inner =
      fs::path(path).lexically_normal().lexically_relative(programFolder.lexically_normal());
  return !inner.empty() &&
         std::ranges::find(wholeFolders, *inner.begin()) != std::end(wholeFolders);
}

}  // namespace

std::vector<PracticeFile> practiceFiles(const fs::path& root, const fs::path& except) {
  std::vector<PracticeFile> files;
  addDataFiles(files, root);
  for (const char* folder : wholeFolders) addFolder(files, root, root / folder, except);
  return files;
}

FileComparison compareFiles(std::span<const PracticeFile> files, const fs::path& other) {
  FileComparison found;
  for (const PracticeFile& file : files) {
    const auto there = stateOf(other / file.name);
    if (!there) {
      found.missing.push_back(file);
    } else if (there->written > file.written + sameTime) {
      found.newer.push_back(file);
    } else if (there->written < file.written - sameTime ||
               there->bytes != static_cast<std::uintmax_t>(file.bytes)) {
      found.older.push_back(file);
    } else {
      found.same.push_back(file);
    }
  }
  return found;
}

// While a file is being replaced the list is silent about it: a work that is killed must not leave
// a new file with the checksum of the old one, which would be taken for damage.
Status backUpFiles(const fs::path& programFolder, const fs::path& into, FileCopies& copies,
                   const Progress& progress) {
  const fs::path kept = into / backupFilesFolder;
  FileList onDisk = readFileList(kept);
  FileList list = onDisk;
  std::erase_if(list, [&](const auto& entry) { return !stateOf(kept / entry.first); });
  const auto files = filesToBackUp(practiceFiles(programFolder, into), kept, list);
  const auto store = [&](const FileList& wanted) -> Status {
    if (wanted == onDisk) return {};
    onDisk = wanted;
    return writeFileList(kept, wanted);
  };
  if (Status silent = store(without(list, files)); !silent) return silent;
  FileList written;
  Status status = copyFiles({programFolder, kept, {}}, files, copies, written, progress);
  written.merge(list);
  Status told = store(written);
  return status ? told : status;
}

Status restoreFiles(const fs::path& backup, const fs::path& programFolder,
                    std::span<const PracticeFile> files, FileCopies& copies,
                    const Progress& progress) {
  const fs::path kept = backup / backupFilesFolder;
  FileList written;
  return copyFiles({kept, programFolder, readFileList(kept)}, files, copies, written, progress);
}

dao::Result<FileCheck> checkFiles(const fs::path& backup, const Progress& progress) {
  const fs::path kept = backup / backupFilesFolder;
  const std::vector<PracticeFile> files = practiceFiles(kept);
  const FileList list = readFileList(kept);
  const FileList missing = without(list, files);
  FileCheck check{std::ssize(files), 0, std::ssize(missing)};
  bool goOn = true;
  const auto share = [&](std::int64_t done, std::int64_t total) {
    return goOn = !progress || progress(done, total);
  };
  for (const PracticeFile& file : files) {
    const ListedFile* entry = entryOf(list, file);
    if (entry == nullptr) continue;
    const bool good =
        entry->bytes == file.bytes && checksumOf(kept / file.name, share) == entry->checksum;
    if (!goOn) return std::unexpected(Status(dao::Fault::Other, "The work was stopped."));
    if (!good) ++check.damaged;
  }
  return check;
}

dao::Result<std::int64_t> picturesElsewhere(const fs::path& programFolder) {
  std::set<std::string> paths;
  Status read = addPaths(dataFile(programFolder, personalKind), personalSchema(), paths);
  if (read) read = addPaths(dataFile(programFolder, clinicalKind), clinicalSchema(), paths);
  if (!read) return std::unexpected(read);
  return std::ranges::count_if(
      paths, [&](const std::string& path) { return !liesInPractice(programFolder, path); });
}

}  // namespace stores
