// Internal: the engine below the seam. Statements, rows and transactions; nothing else speaks to
// the file.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/collation.h"
#include "platform/dao/database.h"
#include "platform/dao/value.h"
#include "platform/status/status.h"

struct sqlite3;
struct sqlite3_stmt;

namespace dao {

// A compiled statement. Its engine outlives it; closing the engine makes every call of it answer
// NoCurrent.
class Statement {
 public:
  Statement() = default;
  Statement(Engine& engine, sqlite3_stmt* handle) : engine_(&engine), handle_(handle) {}
  Statement(Statement&& other) noexcept;
  Statement& operator=(Statement&& other) noexcept;
  ~Statement();

  explicit operator bool() const { return handle_ != nullptr; }

  // Parameters count from 1. bindView() does not copy: the text lives until reset().
  void bind(int parameter, const Value& value);
  void bindView(int parameter, std::string_view text);
  void bindAll(const std::vector<Value>& values);

  // Whether there is a row. The end and a fault reset the statement, which ends its read lock.
  [[nodiscard]] Result<bool> step(std::string_view subject);
  void reset();

  [[nodiscard]] int columnCount() const;
  [[nodiscard]] bool isNull(int column) const;
  [[nodiscard]] std::int64_t integer(int column) const;
  [[nodiscard]] std::string_view text(int column) const;  // until the next step
  [[nodiscard]] sqlite3_stmt* handle() const { return handle_; }

 private:
  Engine* engine_ = nullptr;
  sqlite3_stmt* handle_ = nullptr;
};

// When two stamps are equal, no row of the file has changed in between as far as this connection
// can tell.
struct ChangeStamp {
  std::uint32_t file = 0;  // the file's own counter of commits
  std::int64_t own = 0;    // what this connection did
  bool operator==(const ChangeStamp&) const = default;
};

class Engine {
 public:
  static Result<std::shared_ptr<Engine>> open(const std::filesystem::path& path,
                                              const OpenOptions& options);
  // An empty store of the same name and order among the temporary files, which goes when it is
  // closed.
  static Result<std::shared_ptr<Engine>> scratch(const Engine& like);
  Engine(const std::filesystem::path& path, Order order);
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  ~Engine() { close(); }

  void close();
  [[nodiscard]] bool isOpen() const { return handle_ != nullptr; }
  [[nodiscard]] bool isReadOnly() const;
  [[nodiscard]] bool isMarked() const { return marked_; }
  [[nodiscard]] Order order() const { return order_; }
  [[nodiscard]] const Collator& collator() const { return *collator_; }
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  // One statement, nothing behind it. `subject` is what a fault's text names.
  [[nodiscard]] Result<Statement> prepare(std::string_view sql, std::string_view subject);
  // Runs to the end and forgets the rows. The number of rows changed.
  Result<std::int64_t> run(std::string_view sql, std::string_view subject,
                           const std::vector<Value>& parameters = {});

  // Nested calls join the outermost transaction.
  Status begin();
  Status commit();
  void rollback();
  [[nodiscard]] bool inTransaction() const { return depth_ > 0; }

  // Whether the engine has given up the open transaction by itself, after a write that failed. What
  // would still be written then would be kept at once, without the rest of it.
  [[nodiscard]] bool isLost() const;
  // Why.
  [[nodiscard]] Status lostFault() const;

  // Lets this connection compare the texts of a store of another order.
  Status useOrder(Order order);

  // Writes the marks of a store into a file that has none.
  Status mark();

  // For how long a call waits for another connection's lock before it is Busy.
  void setPatience(std::chrono::milliseconds patience);
  [[nodiscard]] std::chrono::milliseconds usualPatience() const { return usualPatience_; }

  // Asks now and then, while a statement runs, whether to go on; a refusal ends the statement with
  // a fault. The function outlives the connection.
  void whileRunning(const std::function<bool()>& goOn);

  [[nodiscard]] ChangeStamp changeStamp();
  [[nodiscard]] std::int64_t lastNumber() const;

  // What the last call of the engine failed with; the second form is for statements.
  [[nodiscard]] Status fault(std::string_view subject) const;
  [[nodiscard]] Status stepFault(std::string_view subject);
  // The engine's own words for it.
  [[nodiscard]] std::string lastMessage() const;
  [[nodiscard]] Status closedFault() const;
  [[nodiscard]] sqlite3* handle() const { return handle_; }

 private:
  Status connect(const OpenOptions& options);
  Status configure(const OpenOptions& options);
  Status prepareOrder();
  Status readMarks(const OpenOptions& options);
  Result<std::int64_t> number(std::string_view sql);
  [[nodiscard]] std::uint32_t fileCounter();

  std::filesystem::path path_;
  sqlite3* handle_ = nullptr;
  Order order_;
  std::unique_ptr<Collator> collator_;
  std::unique_ptr<Collator> otherCollator_;  // of the order that is not the store's own
  std::chrono::milliseconds usualPatience_{};
  bool marked_ = false;
  int depth_ = 0;
  bool doomed_ = false;
  Status cause_;  // of a transaction that is lost
  std::int64_t rollbacks_ = 0;
  std::uint32_t counter_ = 0;
  std::chrono::steady_clock::time_point counterRead_{};
};

[[nodiscard]] std::string sqlName(std::string_view name);

}  // namespace dao
