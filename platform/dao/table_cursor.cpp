#include <algorithm>

#include "platform/dao/cursor.h"
#include "platform/dao/field_rules.h"
#include "platform/dao/key_pager.h"
#include "platform/dao/row_page.h"
#include "platform/dao/row_writer.h"

namespace dao {
namespace {

constexpr int kFirstPage = 16;
constexpr int kPageGrowth = 4;
constexpr int kLargestPage = 256;
// After a write most rows of a page would be read in vain.
constexpr int kPageAfterChange = 4;

std::vector<std::string> fieldNames(const TableShape& table) {
  std::vector<std::string> names;
  for (const FieldInfo& field : table.fields) names.push_back(field.name);
  return names;
}

class TableCursor : public Cursor {
 public:
  TableCursor(std::shared_ptr<Engine> shared, TableShape table)
      : Cursor(shared, subjectOf(*shared, table.name), fieldNames(table)),
        table_(std::move(table)),
        pager_(std::make_unique<KeyPager>(engine(), table_, nullptr)),
        writer_(engine(), table_) {}

  Status Index(std::string_view name) override;
  Status Seek(std::string_view comparison, const Value& key) override;
  bool NoMatch() const override { return noMatch_; }
  Status MoveFirst() override { return moveToEnd(&KeyPager::first); }
  Status MoveLast() override { return moveToEnd(&KeyPager::last); }
  Status MoveNext() override;
  Status MovePrevious() override;
  bool Eof() override;
  bool Bof() override;
  std::int64_t RecordCount() override;
  bool empty() override;

  Status AddNew() override;
  Status Edit() override;
  Status Update() override;
  void CancelUpdate() override { buffer_ = Buffer::Closed; }
  Status Delete() override;
  Status set(int column, const Value& value) override;
  Value LastModified() const override { return lastModified_; }
  Value Bookmark() override;
  Status SetBookmark(const Value& bookmark) override;

  bool readable() override { return buffer_ == Buffer::New || onRow(); }
  Value value(int column) override;
  std::string_view view(int column) override;
  bool isNull(int column) override;

 private:
  // Unmatched: a Seek found nothing. BothEnds: no rows, or none that can be read.
  enum class At { Unset, Row, Deleted, Unmatched, Start, End, BothEnds };
  enum class Buffer { Closed, New, Changed };
  using EndLoader = Status (KeyPager::*)(RowPage&, int);
  using Loader = Status (KeyPager::*)(const Key&, RowPage&, int);

  void settle();
  [[nodiscard]] bool onRow();
  Status moveToEnd(EndLoader load);
  Status move(int step);
  Status moveBy(int step);
  Status loadBeyond(int step);
  Status lost(Status status);
  Status add();
  Status change();
  Status reread(const Value& identity);
  void openBuffer(Buffer kind);
  [[nodiscard]] const std::optional<Value>& assigned(int column) const {
    return assigned_[static_cast<std::size_t>(column)];
  }

  TableShape table_;
  std::unique_ptr<KeyPager> pager_;
  RowWriter writer_;
  RowPage page_;
  int row_ = 0;
  int limit_ = kFirstPage;
  At at_ = At::Unset;
  ChangeStamp loaded_;
  bool noMatch_ = false;
  Buffer buffer_ = Buffer::Closed;
  Assigned assigned_;
  Value lastModified_;
  ChangeStamp counted_;
  std::optional<std::int64_t> count_;
};

// A recordset opens on its first record; it is read when somebody asks.
void TableCursor::settle() {
  if (at_ == At::Unset) moveToEnd(&KeyPager::first).ignore();
}

bool TableCursor::onRow() {
  settle();
  return at_ == At::Row;
}

// Whatever cannot be read ends a walk, lest a loop that passes over faults never ends.
Status TableCursor::lost(Status status) {
  at_ = At::BothEnds;
  return status;
}

Status TableCursor::Index(std::string_view name) {
  const IndexInfo* index = table_.index(name);
  if (!index)
    return {Fault::Missing, subject() + ": there is no index \"" + std::string(name) + "\"."};
  buffer_ = Buffer::Closed;
  pager_ = std::make_unique<KeyPager>(engine(), table_, index);
  at_ = At::Unset;
  return {};
}

Status TableCursor::Seek(std::string_view comparison, const Value& key) {
  buffer_ = Buffer::Closed;
  noMatch_ = true;
  at_ = At::Unmatched;
  if (table_.indexes.empty())
    return {Fault::Missing, subject() + ": there is no index to seek by."};
  loaded_ = engine().changeStamp();
  limit_ = kFirstPage;
  if (Status status = pager_->seek(comparison, key, page_); !status) return status;
  if (page_.rows() == 0) return {};
  noMatch_ = false;
  row_ = 0;
  at_ = At::Row;
  return {};
}

Status TableCursor::moveToEnd(EndLoader load) {
  buffer_ = Buffer::Closed;
  loaded_ = engine().changeStamp();
  limit_ = kFirstPage;
  if (Status status = (*pager_.*load)(page_, limit_); !status) return lost(std::move(status));
  at_ = page_.rows() > 0 ? At::Row : At::BothEnds;
  row_ = load == &KeyPager::last ? page_.rows() - 1 : 0;
  return at_ == At::Row ? Status() : noCurrent();
}

Status TableCursor::MoveNext() {
  settle();
  buffer_ = Buffer::Closed;
  if (at_ == At::Start) return MoveFirst();
  return move(1);
}

Status TableCursor::MovePrevious() {
  settle();
  buffer_ = Buffer::Closed;
  if (at_ == At::End) return MoveLast();
  return move(-1);
}

Status TableCursor::move(int step) {
  if (at_ == At::Row || at_ == At::Deleted) return moveBy(step);
  return at_ == At::Unmatched ? lost(noCurrent()) : noCurrent();
}

Status TableCursor::moveBy(int step) {
  const int next = row_ + step;
  const bool fresh = engine().changeStamp() == loaded_;
  if (!fresh) limit_ = kPageAfterChange;
  if (!fresh || next < 0 || next >= page_.rows()) return loadBeyond(step);
  row_ = next;
  at_ = At::Row;
  return {};
}

Status TableCursor::loadBeyond(int step) {
  const Loader load = step > 0 ? &KeyPager::after : &KeyPager::before;
  const Key key = pager_->key(page_, row_);
  loaded_ = engine().changeStamp();
  Status status = (*pager_.*load)(key, page_, limit_);
  if (status) status = pager_->isBeyond(key, page_, step > 0);
  if (!status) return lost(std::move(status));
  limit_ = std::min(limit_ * kPageGrowth, kLargestPage);
  row_ = step > 0 ? 0 : page_.rows() - 1;
  at_ = page_.rows() > 0 ? At::Row : step > 0 ? At::End : At::Start;
  return {};
}

bool TableCursor::Eof() {
  settle();
  return at_ == At::End || at_ == At::BothEnds || !engine().isOpen();
}

bool TableCursor::Bof() {
  settle();
  return at_ == At::Start || at_ == At::BothEnds || !engine().isOpen();
}

std::int64_t TableCursor::RecordCount() {
  const ChangeStamp now = engine().changeStamp();
  if (count_ && counted_ == now) return *count_;
  auto statement = engine().prepare("SELECT count(*) FROM " + sqlName(table_.name), subject());
  if (!statement || !statement->step(subject()).value_or(false)) return 0;
  count_ = statement->integer(0);
  counted_ = now;
  return *count_;
}

bool TableCursor::empty() {
  auto statement =
      engine().prepare("SELECT 1 FROM " + sqlName(table_.name) + " LIMIT 1", subject());
  return !statement || !statement->step(subject()).value_or(false);
}

void TableCursor::openBuffer(Buffer kind) {
  buffer_ = kind;
  assigned_.assign(table_.fields.size(), std::nullopt);
}

Status TableCursor::AddNew() {
  if (!engine().isOpen()) return engine().closedFault();
  settle();
  openBuffer(Buffer::New);
  return {};
}

Status TableCursor::Edit() {
  buffer_ = Buffer::Closed;
  if (!onRow()) return noCurrent();
  if (Status status = reread(pager_->identity(page_, row_)); !status) return status;
  openBuffer(Buffer::Changed);
  return {};
}

// The page shrinks to the one row; the moves go on from its key.
Status TableCursor::reread(const Value& identity) {
  RowPage page;
  if (Status status = pager_->row(identity, page); !status) return status;
  if (page.rows() == 0)
    return {Fault::Stale, subject() + ": another station has deleted this record."};
  page_ = std::move(page);
  row_ = 0;
  at_ = At::Row;
  return {};
}

Status TableCursor::Update() {
  switch (buffer_) {
    case Buffer::New:
      return add();
    case Buffer::Changed:
      return change();
    case Buffer::Closed:
      break;
  }
  return {Fault::NoCurrent, subject() + ": Update needs AddNew or Edit before it."};
}

Status TableCursor::add() {
  auto identity = writer_.insert(assigned_);
  if (!identity) return identity.error();
  buffer_ = Buffer::Closed;
  lastModified_ = std::move(*identity);
  return {};
}

Status TableCursor::change() {
  auto identity = writer_.update(pager_->identity(page_, row_), assigned_);
  if (!identity) return identity.error();
  buffer_ = Buffer::Closed;
  lastModified_ = std::move(*identity);
  return reread(lastModified_);
}

Status TableCursor::Delete() {
  buffer_ = Buffer::Closed;
  if (!onRow()) return noCurrent();
  if (Status status = writer_.remove(pager_->identity(page_, row_)); !status) return status;
  at_ = At::Deleted;
  return {};
}

Status TableCursor::set(int column, const Value& value) {
  if (buffer_ == Buffer::Closed)
    return {Fault::NoCurrent, subject() + ": writing needs AddNew or Edit before it."};
  auto fitted = fitting(value, table_.fields[static_cast<std::size_t>(column)], table_.name);
  if (!fitted) return fitted.error();
  assigned_[static_cast<std::size_t>(column)] = std::move(*fitted);
  return {};
}

Value TableCursor::value(int column) {
  if (buffer_ != Buffer::Closed && assigned(column)) return *assigned(column);
  if (buffer_ == Buffer::New || !onRow()) return {};
  return typed(page_.raw(row_, column), table_.fields[static_cast<std::size_t>(column)].type);
}

std::string_view TableCursor::view(int column) {
  if (buffer_ != Buffer::Closed && assigned(column)) {
    const auto* text = std::get_if<std::string>(&assigned(column)->held());
    return text ? std::string_view(*text) : "";
  }
  if (buffer_ == Buffer::New || !onRow()) return {};
  return page_.text(page_.cell(row_, column));
}

bool TableCursor::isNull(int column) {
  if (buffer_ != Buffer::Closed && assigned(column)) return assigned(column)->isNull();
  return buffer_ == Buffer::New || !onRow() || page_.cell(row_, column).kind == Cell::Kind::Null;
}

Value TableCursor::Bookmark() {
  return onRow() ? pager_->identity(page_, row_) : Value();
}

Status TableCursor::SetBookmark(const Value& bookmark) {
  buffer_ = Buffer::Closed;
  limit_ = kFirstPage;
  loaded_ = engine().changeStamp();
  return reread(bookmark);
}

}  // namespace

Result<std::unique_ptr<Cursor>> openTable(std::shared_ptr<Engine> engine, std::string_view table) {
  auto shape = readTable(*engine, table);
  if (!shape) return std::unexpected(shape.error());
  return std::make_unique<TableCursor>(std::move(engine), std::move(*shape));
}

}  // namespace dao
