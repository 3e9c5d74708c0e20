// Short makers for the rows of the schemas.
#pragma once

#include <span>
#include <string_view>

#include "platform/dao/definition.h"

namespace stores {

constexpr dao::FieldDef text(std::string_view name, int size) {
  return {name, dao::FieldType::Text, size, dao::ZeroLength::Allowed};
}
// A text that refuses to be empty: the record cannot be saved without it.
constexpr dao::FieldDef filledText(std::string_view name, int size) {
  return {name, dao::FieldType::Text, size, dao::ZeroLength::Refused};
}
// Text of any length.
constexpr dao::FieldDef longText(std::string_view name) {
  return {name, dao::FieldType::Memo, 0, dao::ZeroLength::Allowed};
}
constexpr dao::FieldDef date(std::string_view name) {
  return {name, dao::FieldType::Date};
}
constexpr dao::FieldDef number(std::string_view name) {
  return {name, dao::FieldType::Long};
}
constexpr dao::FieldDef integer(std::string_view name) {
  return {name, dao::FieldType::Integer};
}
constexpr dao::FieldDef byte(std::string_view name) {
  return {name, dao::FieldType::Byte};
}
constexpr dao::FieldDef yesNo(std::string_view name) {
  return {name, dao::FieldType::Boolean};
}
constexpr dao::FieldDef autoNumber(std::string_view name) {
  return {name, dao::FieldType::Long, 0, dao::ZeroLength::Refused, dao::AutoIncrement::Yes};
}

constexpr dao::IndexDef primaryKey(std::string_view field) {
  return {"PrimaryKey", field, dao::Primary::Yes, dao::Unique::Yes};
}
constexpr dao::IndexDef plainIndex(std::string_view name, std::string_view field) {
  return {name, field};
}

using Schema = std::span<const dao::TableDef>;

// Null for a table or field that the schema does not have; names without regard to case.
[[nodiscard]] const dao::TableDef* tableOf(Schema schema, std::string_view table);
[[nodiscard]] const dao::FieldDef* fieldOf(const dao::TableDef& table, std::string_view field);

}  // namespace stores
