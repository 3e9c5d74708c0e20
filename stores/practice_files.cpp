#include "stores/practice_files.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <set>
#include <string>

#include "platform/files/copy_file.h"
#include "platform/files/folders.h"
#include "platform/files/replace.h"
#include "stores/clinical_schema.h"
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

bool sameContent(const fs::path& one, const fs::path& other) {
  std::ifstream left(one, std::ios::binary);
  std::ifstream right(other, std::ios::binary);
  constexpr std::size_t atOnce = std::size_t{1} << 16U;
  std::string block(atOnce, '\0');
  std::string counterpart(atOnce, '\0');
  while (left && right) {
    left.read(block.data(), atOnce);
    right.read(counterpart.data(), atOnce);
    if (left.gcount() != right.gcount() || block != counterpart) return false;
  }
  return left.eof() && right.eof();
}

bool leadsOut(const fs::path& root, const fs::path& folder) {
  std::error_code error;
  const fs::path inner =
      fs::weakly_canonical(folder, error).lexically_relative(fs::weakly_canonical(root, error));
  return error || inner.empty() || *inner.begin() == "..";
}

// The draft is as its source, in content and time.
Status makeDraft(const fs::path& source, const fs::path& draft, const PracticeFile& file,
                 const files::CopyProgress& progress) {
  std::error_code error;
  fs::remove(draft, error);
  if (Status copied = files::copyFile(source, draft, progress); !copied) return copied;
  if (!sameContent(source, draft))
    return {dao::Fault::Busy, file.name.string() + ": it has changed meanwhile."};
  files::shareLike(draft, source);
  fs::last_write_time(draft, file.written, error);
  return {};
}

Status copyOne(const fs::path& from, const fs::path& to, const PracticeFile& file,
               const files::CopyProgress& progress) {
  const fs::path target = to / file.name;
  if (leadsOut(to, target.parent_path()))
    return {dao::Fault::Unsupported, target.string() + ": a link leads out of the folder."};
  if (Status made = files::createFolders(target.parent_path()); !made) return made;
  fs::path draft = target;
  draft += draftEnding;
  Status status = makeDraft(from / file.name, draft, file, progress);
  if (status) status = files::replaceFile(draft, target);
  std::error_code ignored;
  if (!status) fs::remove(draft, ignored);
  return status;
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

Status copyFiles(const fs::path& from, const fs::path& to, std::span<const PracticeFile> files,
                 FileCopies& copies, const Progress& progress) {
  std::int64_t all = 0;
  for (const PracticeFile& file : files) all += file.bytes;
  std::int64_t before = 0;
  bool goOn = true;
  for (const PracticeFile& file : files) {
    const auto share = [&](std::int64_t done, std::int64_t) {
      return goOn = !progress || progress(std::min(before + done, all), all);
    };
    Status status = copyOne(from, to, file, share);
    if (!goOn || status.fault() == dao::Fault::DiskFull) return status;
    status ? ++copies.copied : ++copies.failed;
    if (!status && copies.failed == 1) copies.fault = status;
    before += file.bytes;
  }
  return {};
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
    }
  }
  return found;
}

// A file that somebody put back from elsewhere has an old date, and has changed as well.
Status backUpFiles(const fs::path& programFolder, const fs::path& into, FileCopies& copies,
                   const Progress& progress) {
  const fs::path kept = into / backupFilesFolder;
  FileComparison changed = compareFiles(practiceFiles(programFolder, into), kept);
  std::vector<PracticeFile> files = std::move(changed.missing);
  files.insert(files.end(), changed.older.begin(), changed.older.end());
  files.insert(files.end(), changed.newer.begin(), changed.newer.end());
  return copyFiles(programFolder, kept, files, copies, progress);
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
