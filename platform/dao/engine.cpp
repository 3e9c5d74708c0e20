#include "platform/dao/engine.h"

#include <sqlite3.h>

#include <array>

#include "platform/dao/engine_fault.h"
#include "platform/dao/engine_functions.h"
#include "platform/dao/store_files.h"

namespace dao {
namespace {

constexpr std::int64_t kApplicationId = 0x534E564C;
constexpr std::int64_t kGeneralMark = 1;
constexpr std::int64_t kTurkishMark = 2;

// How long another station's commit may go unnoticed while rows of one page are walked.
constexpr std::chrono::microseconds kNoticeWithin{100};

// Some milliseconds of work.
constexpr int kStepsBetweenQuestions = 10'000;

std::int64_t markOf(Order order) {
  return order == Order::Turkish ? kTurkishMark : kGeneralMark;
}

constexpr std::uintmax_t kSmallestPage = 512;

// What a store's file may ask of the engine. Others may have written it.
constexpr int kLongestText = 64 << 20;
constexpr int kLongestStatement = 1 << 20;
constexpr int kMostColumns = 500;
constexpr int kMostAttached = 2;

struct Setting {
  int what;
  int value;
};

void distrust(sqlite3* connection) {
  constexpr std::array settings{
      // A quoted name that is no field is a fault, never a text.
      Setting{SQLITE_DBCONFIG_DQS_DML, 0},        Setting{SQLITE_DBCONFIG_DQS_DDL, 0},
      Setting{SQLITE_DBCONFIG_ENABLE_TRIGGER, 0}, Setting{SQLITE_DBCONFIG_ENABLE_VIEW, 0},
      Setting{SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0}, Setting{SQLITE_DBCONFIG_DEFENSIVE, 1}};
  for (const Setting& each : settings)
    sqlite3_db_config(connection, each.what, each.value, nullptr);
  constexpr std::array limits{Setting{SQLITE_LIMIT_LENGTH, kLongestText},
                              Setting{SQLITE_LIMIT_SQL_LENGTH, kLongestStatement},
                              Setting{SQLITE_LIMIT_COLUMN, kMostColumns},
                              Setting{SQLITE_LIMIT_ATTACHED, kMostAttached},
                              Setting{SQLITE_LIMIT_TRIGGER_DEPTH, 1}};
  // No table of a store is a program; statements of ours unfold lists.
  const char* kept[] = {"json_each", nullptr};
  sqlite3_drop_modules(connection, kept);
  for (const Setting& each : limits) sqlite3_limit(connection, each.what, each.value);
}

// As a name that promises that nobody changes the file: it is neither locked nor recovered.
std::string stillName(const std::filesystem::path& path) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string name = "file:";
  for (const char each : path.string()) {
    const auto byte = static_cast<unsigned char>(each);
    const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                       (byte >= '0' && byte <= '9') || byte == '/' || byte == '.' || byte == '-';
    if (plain) {
      name += each;
    } else {
      name += {'%', kHex[byte >> 4U], kHex[byte & 15U]};
    }
  }
  return name + "?immutable=1";
}

// Of a work that was not brought to its end.
bool hasJournal(const std::filesystem::path& path) {
  for (const char* ending : {"-journal", "-wal"}) {
    std::filesystem::path journal = path;
    journal += ending;
    std::error_code none;
    const auto state = std::filesystem::symlink_status(journal, none);
    const bool plain = std::filesystem::is_regular_file(state);
    if (std::filesystem::exists(state) && (!plain || std::filesystem::file_size(journal, none) > 0))
      return true;
  }
  return false;
}

// Nothing of it is left after a crash.
constexpr std::string_view kScratchSettings =
    "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA cache_size=-2000;";

bool isMarkedReadOnly(const std::filesystem::path& path) {
  using std::filesystem::perms;
  constexpr perms kWrite = perms::owner_write | perms::group_write | perms::others_write;
  std::error_code error;
  return (std::filesystem::status(path, error).permissions() & kWrite) == perms::none && !error;
}

Status fileFault(const std::filesystem::path& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  const std::string name = path.filename().string();
  if (!std::filesystem::exists(status)) return {Fault::Missing, name + ": there is no such file."};
  const bool regular = std::filesystem::is_regular_file(status);
  const auto size = regular ? std::filesystem::file_size(path, error) : 0;
  // The engine would take a few bytes for an empty file.
  if (!regular || (size > 0 && size < kSmallestPage))
    return {Fault::Damaged, name + ": this is not a store file."};
  return {};
}

}  // namespace

std::string sqlName(std::string_view name) {
  std::string text = "\"";
  for (const char character : name) text.append(character == '"' ? 2 : 1, character);
  return text += '"';
}

Engine::Engine(const std::filesystem::path& path, Order order) : path_(path), order_(order) {}

Result<std::shared_ptr<Engine>> Engine::open(const std::filesystem::path& path,
                                             const OpenOptions& options) {
  if (Status fault = fileFault(path); !fault) return std::unexpected(fault);
  std::error_code error;
  const auto whole = std::filesystem::absolute(path, error);
  if (error)
    return std::unexpected(
        Status(Fault::Missing, path.filename().string() + ": there is no such file."));
  auto engine = std::make_shared<Engine>(whole, options.emptyFileOrder);
  Status status = engine->connect(options);
  if (status) status = engine->configure(options);
  if (status) status = engine->readMarks(options);
  if (!status) return std::unexpected(std::move(status));
  return engine;
}

Result<std::shared_ptr<Engine>> Engine::scratch(const Engine& like) {
  auto engine = std::make_shared<Engine>(like.path_, like.order_);
  constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  if (sqlite3_open_v2("", &engine->handle_, flags, storeFileSystem()) != SQLITE_OK)
    return std::unexpected(engine->fault(like.path_.filename().string()));
  sqlite3_exec(engine->handle_, kScratchSettings.data(), nullptr, nullptr, nullptr);
  if (Status ready = engine->prepareOrder(); !ready) return std::unexpected(std::move(ready));
  return engine;
}

Status Engine::connect(const OpenOptions& options) {
  const bool still = options.access == Access::Still;
  const bool readOnly = still || options.access == Access::ReadOnly || isMarkedReadOnly(path_);
  const int flags = (readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) |
                    (still ? SQLITE_OPEN_URI : 0) | SQLITE_OPEN_NOMUTEX;
  const std::string name = still ? stillName(path_) : path_.string();
  if (still && hasJournal(path_))
    return {Fault::Damaged, path_.filename().string() + ": a journal lies beside it."};
  std::error_code unknown;
  allowFolder(std::filesystem::canonical(path_, unknown).parent_path());
  if (sqlite3_open_v2(name.c_str(), &handle_, flags, storeFileSystem()) != SQLITE_OK)
    return fault(path_.filename().string());
  sqlite3_extended_result_codes(handle_, 1);
  distrust(handle_);
  usualPatience_ = options.busyTimeout;
  setPatience(usualPatience_);
  return {};
}

Status Engine::configure(const OpenOptions&) {
  const std::string subject = path_.filename().string();
  if (auto tables = number("SELECT count(*) FROM sqlite_schema"); !tables) return tables.error();
  // A file that is read-only keeps the journal mode that it has.
  sqlite3_exec(handle_, kConnectionSettings.data(), nullptr, nullptr, nullptr);
  return {};
}

Status Engine::readMarks(const OpenOptions& options) {
  const auto tables = number("SELECT count(*) FROM sqlite_schema");
  const auto application = number("PRAGMA application_id");
  const auto mark = number("PRAGMA user_version");
  for (const auto* each : {&tables, &application, &mark}) {
    if (!*each) return each->error();
  }
  marked_ = *application == kApplicationId && (*mark == kGeneralMark || *mark == kTurkishMark);
  if (!marked_ && *tables > 0) {
    return {Fault::Unsupported,
            path_.filename().string() + ": this file belongs to another program."};
  }
  order_ = !marked_                ? options.emptyFileOrder
           : *mark == kTurkishMark ? Order::Turkish
                                   : Order::General;
  return prepareOrder();
}

Status Engine::prepareOrder() {
  collator_ = std::make_unique<Collator>(order_);
  if (!collator_->usable())
    return {Fault::Failed, "The collation rules of the system are missing."};
  if (addFunctions(handle_, order_, *collator_) != SQLITE_OK)
    return fault(path_.filename().string());
  return {};
}

Status Engine::useOrder(Order order) {
  if (!handle_) return closedFault();
  if (order == order_ || otherCollator_) return {};
  auto collator = std::make_unique<Collator>(order);
  if (!collator->usable()) return {Fault::Failed, "The collation rules of the system are missing."};
  if (addCollation(handle_, order, *collator) != SQLITE_OK) return fault(path_.filename().string());
  otherCollator_ = std::move(collator);
  return {};
}

Result<std::int64_t> Engine::number(std::string_view sql) {
  const std::string subject = path_.filename().string();
  auto statement = prepare(sql, subject);
  if (!statement) return std::unexpected(statement.error());
  const auto row = statement->step(subject);
  if (!row) return std::unexpected(row.error());
  return *row ? statement->integer(0) : 0;
}

Status Engine::mark() {
  if (marked_) return {};
  const std::string subject = path_.filename().string();
  const std::array statements{
      "PRAGMA application_id=" + std::to_string(kApplicationId),
      "PRAGMA user_version=" + std::to_string(markOf(order_)),
      std::string(
          "CREATE TABLE IF NOT EXISTS \"~store\"(name TEXT PRIMARY KEY, value TEXT) WITHOUT ROWID"),
      "INSERT OR REPLACE INTO \"~store\" VALUES('collation', '" + collator_->version() + "')"};
  for (const std::string& statement : statements) {
    if (auto done = run(statement, subject); !done) return done.error();
  }
  marked_ = true;
  return {};
}

void Engine::close() {
  if (!handle_) return;
  rollback();
  while (sqlite3_stmt* statement = sqlite3_next_stmt(handle_, nullptr)) sqlite3_finalize(statement);
  sqlite3_close(handle_);
  handle_ = nullptr;
}

bool Engine::isReadOnly() const {
  return handle_ && sqlite3_db_readonly(handle_, "main") == 1;
}

Result<Statement> Engine::prepare(std::string_view sql, std::string_view subject) {
  if (!handle_) return std::unexpected(closedFault());
  sqlite3_stmt* statement = nullptr;
  const char* rest = nullptr;
  const int size = static_cast<int>(sql.size());
  if (sqlite3_prepare_v3(handle_, sql.data(), size, SQLITE_PREPARE_PERSISTENT, &statement, &rest) !=
      SQLITE_OK) {
    return std::unexpected(fault(subject));
  }
  Statement prepared(*this, statement);
  const std::string_view tail = sql.substr(static_cast<std::size_t>(rest - sql.data()));
  if (!statement || tail.find_first_not_of(" \t\r\n;") != tail.npos) {
    return std::unexpected(
        Status(Fault::Unsupported, std::string(subject) + ": exactly one statement is expected."));
  }
  return prepared;
}

Result<std::int64_t> Engine::run(std::string_view sql, std::string_view subject,
                                 const std::vector<Value>& parameters) {
  auto statement = prepare(sql, subject);
  if (!statement) return std::unexpected(statement.error());
  statement->bindAll(parameters);
  const std::int64_t before = sqlite3_total_changes64(handle_);
  for (;;) {
    const auto row = statement->step(subject);
    if (!row) return std::unexpected(row.error());
    if (!*row) return sqlite3_total_changes64(handle_) - before;
  }
}

Status Engine::begin() {
  if (isReadOnly())
    return {Fault::ReadOnly, path_.filename().string() + ": the file cannot be written."};
  if (depth_ == 0) {
    doomed_ = false;
    cause_ = {};
    if (auto begun = run("BEGIN IMMEDIATE", path_.filename().string()); !begun)
      return begun.error();
  }
  ++depth_;
  return {};
}

Status Engine::commit() {
  if (depth_ == 0) return {Fault::Failed, "There is no open transaction."};
  if (depth_ > 1) {
    --depth_;
    return {};
  }
  if (doomed_) {
    rollback();
    return {Fault::Failed,
            path_.filename().string() + ": a part of the work was given up, so all of it was."};
  }
  if (isLost()) {
    rollback();
    return lostFault();
  }
  if (auto done = run("COMMIT", path_.filename().string()); !done) {
    rollback();
    return done.error();
  }
  depth_ = 0;
  return {};
}

bool Engine::isLost() const {
  return depth_ > 0 && handle_ && sqlite3_get_autocommit(handle_);
}

Status Engine::lostFault() const {
  return cause_ ? Status(Fault::Failed, path_.filename().string() + ": nothing was stored.")
                : cause_;
}

Status Engine::stepFault(std::string_view subject) {
  Status failed = fault(subject);
  if (isLost() && cause_) cause_ = failed;
  return failed;
}

void Engine::rollback() {
  if (depth_ == 0) return;
  doomed_ = true;
  if (--depth_ > 0) return;
  // A full disk or a failed write may have rolled back already.
  if (handle_ && !sqlite3_get_autocommit(handle_))
    sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
  ++rollbacks_;
}

void Engine::setPatience(std::chrono::milliseconds patience) {
  if (handle_) sqlite3_busy_timeout(handle_, static_cast<int>(patience.count()));
}

void Engine::whileRunning(const std::function<bool()>& goOn) {
  const auto refused = [](void* asked) {
    return (*static_cast<const std::function<bool()>*>(asked))() ? 0 : 1;
  };
  // The engine hands back what it was given and does not write to it.
  sqlite3_progress_handler(handle_, kStepsBetweenQuestions, refused,
                           const_cast<std::function<bool()>*>(&goOn));
}

ChangeStamp Engine::changeStamp() {
  if (!handle_) return {};
  const auto now = std::chrono::steady_clock::now();
  if (now - counterRead_ > kNoticeWithin) {
    counter_ = fileCounter();
    counterRead_ = now;
  }
  return {counter_, sqlite3_total_changes64(handle_) + rollbacks_};
}

// Read without a lock: a value caught in the middle of a commit only costs one more look.
std::uint32_t Engine::fileCounter() {
  constexpr sqlite3_int64 kCounterOffset = 24;
  sqlite3_file* file = nullptr;
  sqlite3_file_control(handle_, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  std::array<unsigned char, 4> bytes{};
  if (file && file->pMethods) file->pMethods->xRead(file, bytes.data(), 4, kCounterOffset);
  std::uint32_t counter = 0;
  for (const unsigned char byte : bytes) counter = counter << 8 | byte;
  return counter;
}

std::int64_t Engine::lastNumber() const {
  return handle_ ? sqlite3_last_insert_rowid(handle_) : 0;
}

Status Engine::fault(std::string_view subject) const {
  const std::string refused = takeRefusedFile();
  if (refused.empty()) return engineFault(handle_, subject);
  return {Fault::Damaged, std::string(subject) + ": its journal names what is none of its files (" +
                              refused + "). Nothing was done with it."};
}

std::string Engine::lastMessage() const {
  return handle_ ? sqlite3_errmsg(handle_) : "";
}

Status Engine::closedFault() const {
  return {Fault::NoCurrent, path_.filename().string() + ": the store has been closed."};
}

}  // namespace dao
