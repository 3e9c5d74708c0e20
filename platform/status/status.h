// Errors are values: what a seam call answers when it can fail.
#pragma once

#include <expected>
#include <string>
#include <utility>

namespace platform {

// The few kinds of failure that callers tell apart. Everything else is in the text.
enum class Fault {
  None,
  Missing,      // a file, table, field, index or record that is not there
  Exists,       // a key, file or name that is there already
  NoCurrent,    // no current record
  Stale,        // the current record was deleted or changed by another station
  TooLong,      // text wider than its field
  ZeroLength,   // an empty text where the field refuses one
  NullKey,      // a key field without a value
  WrongType,    // a value that the field cannot hold
  Busy,         // a lock that another station holds timed out
  ReadOnly,     // the file or folder cannot be written
  DiskFull,     // no room left
  Damaged,      // the content is not what its format promises
  NotAFile,     // a link, pipe, device or folder where a plain file is expected
  TooLarge,     // a file beyond all that this program writes
  Unsupported,  // a request that this seam does not serve
  Failed,       // the disk, the engine or the system gave up; the text is for whoever mends it
  Other         // the text says all that there is to say
};

// Success, or a fault with a text that a user can read. The text names what failed (table, field,
// file). Discarding a Status is a warning; a routine whose rule is to pass over errors says
// ignore().
class [[nodiscard]] Status {
 public:
  Status() = default;
  Status(Fault fault, std::string text) : fault_(fault), text_(std::move(text)) {}

  [[nodiscard]] bool ok() const { return fault_ == Fault::None; }
  explicit operator bool() const { return ok(); }
  [[nodiscard]] Fault fault() const { return fault_; }
  [[nodiscard]] const std::string& text() const { return text_; }
  void ignore() const {}

 private:
  Fault fault_ = Fault::None;
  std::string text_;
};

template <class T>
using Result = std::expected<T, Status>;

}  // namespace platform
