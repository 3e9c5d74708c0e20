#include "platform/dao/store_files.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <mutex>
#include <set>
#include <string_view>
#include <utility>

namespace dao {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "stores";
constexpr std::string_view kJournal = "-journal";
constexpr std::string_view kLog = "-wal";
// Of several stores: eight hexadecimal digits follow, and a nine between them.
constexpr std::string_view kShared = "-mj";
constexpr std::size_t kSharedDigits = 9;

class Folders {
 public:
  void add(std::string folder) {
    const std::lock_guard guard(mutex_);
    folders_.insert(std::move(folder));
  }
  bool has(const std::string& folder) {
    const std::lock_guard guard(mutex_);
    return folders_.contains(folder);
  }

 private:
  std::mutex mutex_;
  std::set<std::string> folders_;
};

Folders& allowed() {
  static Folders folders;
  return folders;
}

std::string& refused() {
  thread_local std::string name;
  return name;
}

bool isSharedJournal(std::string_view name) {
  if (name.size() < kSharedDigits + kShared.size()) return false;
  const std::string_view digits = name.substr(name.size() - kSharedDigits);
  name.remove_suffix(kSharedDigits);
  return name.ends_with(kShared) &&
         digits.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
}

// Nothing there is as good: it may be made.
bool isPlainOrNothing(const fs::path& path) {
  struct stat state = {};
  return ::lstat(path.c_str(), &state) != 0 || S_ISREG(state.st_mode);
}

bool isOurs(const char* file) {
  const fs::path path(file);
  const std::string name = path.filename().string();
  const bool known = name.ends_with(kJournal) || name.ends_with(kLog) || isSharedJournal(name);
  return known && allowed().has(path.parent_path().string()) && isPlainOrNothing(path);
}

int refuse(const char* file, int code) {
  refused() = file;
  return code;
}

sqlite3_vfs& usual() {
  static sqlite3_vfs& files = *sqlite3_vfs_find(nullptr);
  return files;
}

int openFile(sqlite3_vfs*, const char* file, sqlite3_file* handle, int flags, int* given) {
  handle->pMethods = nullptr;
  constexpr int kJournals = SQLITE_OPEN_MAIN_JOURNAL | SQLITE_OPEN_WAL;
  const bool shared = (flags & SQLITE_OPEN_SUPER_JOURNAL) != 0;
  if (file && ((shared && !isOurs(file)) || ((flags & kJournals) != 0 && !isPlainOrNothing(file))))
    return refuse(file, SQLITE_CANTOPEN);
  return usual().xOpen(&usual(), file, handle, flags, given);
}

int removeFile(sqlite3_vfs*, const char* file, int flush) {
  if (!isOurs(file)) return refuse(file, SQLITE_IOERR_DELETE);
  return usual().xDelete(&usual(), file, flush);
}

// Only journals are ever looked for by name.
int accessFile(sqlite3_vfs*, const char* file, int kind, int* answer) {
  if (!isOurs(file)) return refuse(file, SQLITE_IOERR_ACCESS);
  return usual().xAccess(&usual(), file, kind, answer);
}

int fullName(sqlite3_vfs*, const char* file, int size, char* full) {
  return usual().xFullPathname(&usual(), file, size, full);
}

sqlite3_vfs ruled() {
  sqlite3_vfs files = usual();
  files.zName = kName;
  files.pNext = nullptr;
  files.xOpen = openFile;
  files.xDelete = removeFile;
  files.xAccess = accessFile;
  files.xFullPathname = fullName;
  return files;
}

}  // namespace

const char* storeFileSystem() {
  static sqlite3_vfs files = ruled();
  static const int registered = sqlite3_vfs_register(&files, 0);
  return registered == SQLITE_OK ? kName : nullptr;
}

void allowFolder(const fs::path& folder) {
  std::error_code error;
  const fs::path real = fs::canonical(folder.empty() ? fs::path(".") : folder, error);
  if (!error) allowed().add(real.string());
}

std::string takeRefusedFile() {
  return std::exchange(refused(), {});
}

}  // namespace dao
