// Internal: what stands behind a recordset.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/catalogue.h"
#include "platform/dao/engine.h"
#include "platform/dao/value.h"

namespace dao {

// Finds fields by name. Screens ask for fields in the order of the table, so the one after the last
// is tried first.
class FieldNames {
 public:
  explicit FieldNames(std::vector<std::string> names) : names_(std::move(names)) {}
  [[nodiscard]] int find(std::string_view name) const;  // -1 when there is none
  [[nodiscard]] int count() const { return static_cast<int>(names_.size()); }
  [[nodiscard]] const std::string& name(int position) const {
    return names_[static_cast<std::size_t>(position)];
  }

 private:
  std::vector<std::string> names_;
  mutable std::size_t expected_ = 0;
};

class Cursor {
 public:
  Cursor(std::shared_ptr<Engine> engine, std::string subject, std::vector<std::string> names)
      : engine_(std::move(engine)), subject_(std::move(subject)), names_(std::move(names)) {}
  Cursor(const Cursor&) = delete;
  Cursor& operator=(const Cursor&) = delete;
  virtual ~Cursor() = default;

  [[nodiscard]] const FieldNames& names() const { return names_; }
  [[nodiscard]] const std::string& subject() const { return subject_; }

  virtual Status Index(std::string_view) { return unsupported("Index"); }
  virtual Status Seek(std::string_view, const Value&) { return unsupported("Seek"); }
  [[nodiscard]] virtual bool NoMatch() const { return false; }
  virtual Status MoveFirst() = 0;
  virtual Status MoveNext() = 0;
  virtual Status MovePrevious() = 0;
  virtual Status MoveLast() = 0;
  [[nodiscard]] virtual bool Eof() = 0;
  [[nodiscard]] virtual bool Bof() = 0;
  [[nodiscard]] virtual std::int64_t RecordCount() = 0;
  [[nodiscard]] virtual bool empty() = 0;

  virtual Status AddNew() { return unsupported("AddNew"); }
  virtual Status Edit() { return unsupported("Edit"); }
  virtual Status Update() { return unsupported("Update"); }
  virtual void CancelUpdate() {}
  virtual Status Delete() { return unsupported("Delete"); }
  virtual Status set(int, const Value&) { return unsupported("writing"); }
  [[nodiscard]] virtual Value LastModified() const { return {}; }
  [[nodiscard]] virtual Value Bookmark() { return {}; }
  virtual Status SetBookmark(const Value&) { return unsupported("SetBookmark"); }

  // Fields of the current record or of the open buffer.
  [[nodiscard]] virtual bool readable() = 0;
  [[nodiscard]] virtual Value value(int column) = 0;
  [[nodiscard]] virtual std::string_view view(int column) = 0;
  [[nodiscard]] virtual bool isNull(int column) = 0;

  [[nodiscard]] Status noCurrent() const {
    return {Fault::NoCurrent, subject_ + ": there is no current record."};
  }

 protected:
  [[nodiscard]] Status unsupported(std::string_view operation) const {
    return {Fault::Unsupported,
            subject_ + ": " + std::string(operation) + " is not possible on these rows."};
  }
  [[nodiscard]] Engine& engine() const { return *engine_; }

 private:
  std::shared_ptr<Engine> engine_;
  std::string subject_;
  FieldNames names_;
};

[[nodiscard]] Result<std::unique_ptr<Cursor>> openTable(std::shared_ptr<Engine> engine,
                                                        std::string_view table);
[[nodiscard]] Result<std::unique_ptr<Cursor>> openSelect(std::shared_ptr<Engine> engine,
                                                         std::string_view text,
                                                         const std::vector<Value>& parameters);
[[nodiscard]] Result<std::unique_ptr<Cursor>> openForward(std::shared_ptr<Engine> engine,
                                                          std::string_view text,
                                                          const std::vector<Value>& parameters);

}  // namespace dao
