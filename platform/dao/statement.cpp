#include <sqlite3.h>

#include "platform/dao/engine.h"

namespace dao {

Statement::Statement(Statement&& other) noexcept
    : engine_(other.engine_), handle_(std::exchange(other.handle_, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
  std::swap(engine_, other.engine_);
  std::swap(handle_, other.handle_);
  return *this;
}

Statement::~Statement() {
  if (handle_ && engine_->isOpen()) sqlite3_finalize(handle_);  // else closing the engine did it
}

void Statement::bind(int parameter, const Value& value) {
  if (!engine_->isOpen()) return;
  if (value.isNull()) {
    sqlite3_bind_null(handle_, parameter);
  } else if (const auto* number = std::get_if<std::int64_t>(&value.held())) {
    sqlite3_bind_int64(handle_, parameter, *number);
  } else if (const auto* real = std::get_if<double>(&value.held())) {
    sqlite3_bind_double(handle_, parameter, *real);
  } else if (const auto* text = std::get_if<std::string>(&value.held())) {
    sqlite3_bind_text64(handle_, parameter, text->c_str(), text->size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
  } else {
    const std::string date = value.text();
    sqlite3_bind_text64(handle_, parameter, date.data(), date.size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
  }
}

void Statement::bindView(int parameter, std::string_view text) {
  if (!engine_->isOpen()) return;
  const char* bytes = text.empty() ? "" : text.data();  // a null pointer would bind Null
  sqlite3_bind_text64(handle_, parameter, bytes, text.size(), SQLITE_STATIC, SQLITE_UTF8);
}

void Statement::bindAll(const std::vector<Value>& values) {
  int parameter = 0;
  for (const Value& value : values) bind(++parameter, value);
}

Result<bool> Statement::step(std::string_view subject) {
  if (!engine_->isOpen()) return std::unexpected(engine_->closedFault());
  if (engine_->isLost()) return std::unexpected(engine_->lostFault());
  const int code = sqlite3_step(handle_);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) {
    sqlite3_reset(handle_);
    return false;
  }
  Status fault = engine_->stepFault(subject);
  sqlite3_reset(handle_);
  return std::unexpected(std::move(fault));
}

void Statement::reset() {
  if (handle_ && engine_->isOpen()) sqlite3_reset(handle_);
}

int Statement::columnCount() const {
  return engine_->isOpen() ? sqlite3_column_count(handle_) : 0;
}

bool Statement::isNull(int column) const {
  return sqlite3_column_type(handle_, column) == SQLITE_NULL;
}

std::int64_t Statement::integer(int column) const {
  return sqlite3_column_int64(handle_, column);
}

std::string_view Statement::text(int column) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(handle_, column));
  return {bytes ? bytes : "", static_cast<std::size_t>(sqlite3_column_bytes(handle_, column))};
}

}  // namespace dao
