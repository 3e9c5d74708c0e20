#include "platform/dao/field_rules.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "platform/text/utf8.h"

namespace dao {
namespace {

struct Range {
  double low;
  double high;
};

Range rangeOf(FieldType type) {
  switch (type) {
    case FieldType::Byte:
      return {0, 255};
    case FieldType::Integer:
      return {-32768, 32767};
    default:
      return {-2147483648.0, 2147483647.0};
  }
}

std::string nameOf(const FieldInfo& field, std::string_view table) {
  return std::string(table) + "." + field.name;
}

std::unexpected<Status> refused(Fault fault, const FieldInfo& field, std::string_view table,
                                const std::string& rule) {
  return std::unexpected(Status(fault, nameOf(field, table) + " " + rule));
}

std::optional<double> numberIn(const Value& value) {
  if (std::holds_alternative<text::DateTime>(value.held())) return std::nullopt;
  const auto* text = std::get_if<std::string>(&value.held());
  if (!text) return value.real();
  const std::size_t first = std::min(text->find_first_not_of(' '), text->size());
  const std::size_t end = text->find_last_not_of(' ') + 1;
  double number = 0;
  const auto parsed =
      std::from_chars(text->data() + first, text->data() + std::max(first, end), number);
  const bool whole = parsed.ec == std::errc() && parsed.ptr == text->data() + end;
  return whole ? std::optional(number) : std::nullopt;
}

Result<Value> fittingText(const Value& value, const FieldInfo& field, std::string_view table) {
  std::string text = value.text();
  if (!text::isAscii(text)) text = text::sanitize(text);
  if (field.size > 0 && std::cmp_greater(text::length(text), field.size)) {
    return refused(Fault::TooLong, field, table,
                   "holds at most " + std::to_string(field.size) + " characters.");
  }
  return text;
}

// Halves go to the even neighbour, as people's older records were rounded.
std::int64_t rounded(double number) {
  return static_cast<std::int64_t>(std::nearbyint(number));
}

Result<Value> fittingNumber(const Value& value, const FieldInfo& field, std::string_view table) {
  const auto number = numberIn(value);
  if (!number || !std::isfinite(*number))
    return refused(Fault::WrongType, field, table, "holds a number.");
  if (field.type == FieldType::Double || field.type == FieldType::Currency) return *number;
  if (field.type == FieldType::Boolean) return *number != 0 ? 1 : 0;
  const Range range = rangeOf(field.type);
  if (*number < range.low || *number > range.high) {
    return refused(Fault::WrongType, field, table,
                   "holds a number from " + Value(rounded(range.low)).text() + " to " +
                       Value(rounded(range.high)).text() + ".");
  }
  return rounded(*number);
}

Result<Value> fittingDate(const Value& value, const FieldInfo& field, std::string_view table) {
  const auto date = value.date();
  if (!date) return refused(Fault::WrongType, field, table, "holds a date.");
  return *date;
}

}  // namespace

Result<Value> fitting(const Value& value, const FieldInfo& field, std::string_view table) {
  if (value.isNull()) return value;
  switch (field.type) {
    case FieldType::Text:
    case FieldType::Memo:
      return fittingText(value, field, table);
    case FieldType::Date:
      return fittingDate(value, field, table);
    default:
      return fittingNumber(value, field, table);
  }
}

}  // namespace dao
