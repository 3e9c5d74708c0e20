#include "platform/dao/recordset.h"

#include <algorithm>

#include "platform/dao/cursor.h"
#include "platform/text/fold.h"

namespace dao {
namespace {

Status closed() {
  return {Fault::NoCurrent, "The recordset is closed."};
}

}  // namespace

int FieldNames::find(std::string_view name) const {
  if (expected_ < names_.size() && names_[expected_] == name) return static_cast<int>(expected_++);
  // Most callers write names as the table does; comparing without case is much slower.
  auto found = std::ranges::find(names_, name);
  if (found == names_.end()) {
    found = std::ranges::find_if(names_,
                                 [&](const auto& held) { return text::equalsNoCase(held, name); });
  }
  if (found == names_.end()) return -1;
  expected_ = static_cast<std::size_t>(found - names_.begin()) + 1;
  return static_cast<int>(expected_ - 1);
}

dao::Value Field::Value() const {
  return column_ < 0 ? dao::Value() : cursor_->value(column_);
}

std::string Field::text() const {
  if (column_ < 0) return {};
  const std::string_view text = cursor_->view(column_);
  return text.empty() ? cursor_->value(column_).text() : std::string(text);
}

bool Field::isNull() const {
  return column_ < 0 || cursor_->isNull(column_);
}

std::string_view Field::view() const {
  return column_ < 0 ? std::string_view() : cursor_->view(column_);
}

Status Field::status() const {
  if (!cursor_) return closed();
  if (column_ < 0) {
    return {Fault::Missing,
            cursor_->subject() + ": there is no field \"" + std::string(name_) + "\"."};
  }
  return cursor_->readable() ? Status() : cursor_->noCurrent();
}

Status Field::Set(const dao::Value& value) {
  return column_ < 0 ? status() : cursor_->set(column_, value);
}

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<Cursor> cursor) : cursor_(std::move(cursor)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

void Recordset::Close() {
  cursor_.reset();
}

Status Recordset::Index(std::string_view name) {
  return cursor_ ? cursor_->Index(name) : closed();
}

Status Recordset::Seek(std::string_view comparison, const Value& key) {
  return cursor_ ? cursor_->Seek(comparison, key) : closed();
}

bool Recordset::NoMatch() const {
  return !cursor_ || cursor_->NoMatch();
}
Status Recordset::MoveFirst() {
  return cursor_ ? cursor_->MoveFirst() : closed();
}
Status Recordset::MoveNext() {
  return cursor_ ? cursor_->MoveNext() : closed();
}
Status Recordset::MovePrevious() {
  return cursor_ ? cursor_->MovePrevious() : closed();
}
Status Recordset::MoveLast() {
  return cursor_ ? cursor_->MoveLast() : closed();
}
bool Recordset::Eof() const {
  return !cursor_ || cursor_->Eof();
}
bool Recordset::Bof() const {
  return !cursor_ || cursor_->Bof();
}
std::int64_t Recordset::RecordCount() const {
  return cursor_ ? cursor_->RecordCount() : 0;
}
bool Recordset::empty() const {
  return !cursor_ || cursor_->empty();
}

Status Recordset::AddNew() {
  return cursor_ ? cursor_->AddNew() : closed();
}
Status Recordset::Edit() {
  return cursor_ ? cursor_->Edit() : closed();
}
Status Recordset::Update() {
  return cursor_ ? cursor_->Update() : closed();
}
Status Recordset::Delete() {
  return cursor_ ? cursor_->Delete() : closed();
}

void Recordset::CancelUpdate() {
  if (cursor_) cursor_->CancelUpdate();
}

Field Recordset::Fields(std::string_view name) {
  return {cursor_.get(), cursor_ ? cursor_->names().find(name) : -1, name};
}

Field Recordset::Fields(int position) {
  const bool known = position >= 0 && position < fieldCount();
  return {cursor_.get(), known ? position : -1, ""};
}

int Recordset::fieldCount() const {
  return cursor_ ? cursor_->names().count() : 0;
}

std::string Recordset::fieldName(int position) const {
  return position >= 0 && position < fieldCount() ? cursor_->names().name(position) : "";
}

Value Recordset::LastModified() const {
  return cursor_ ? cursor_->LastModified() : Value();
}
Value Recordset::Bookmark() const {
  return cursor_ ? cursor_->Bookmark() : Value();
}

Status Recordset::SetBookmark(const Value& bookmark) {
  return cursor_ ? cursor_->SetBookmark(bookmark) : closed();
}

}  // namespace dao
