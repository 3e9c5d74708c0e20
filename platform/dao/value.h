// What a field holds: Null, a whole number, a real number, text or a date.
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "platform/text/date.h"

namespace dao {

class Value {
 public:
  Value() = default;  // Null
  Value(std::integral auto number) : held_(static_cast<std::int64_t>(number)) {}
  Value(double number) : held_(number) {}
  Value(std::string text) : held_(std::move(text)) {}
  Value(std::string_view text) : held_(std::string(text)) {}
  Value(const char* text) : held_(std::string(text)) {}
  Value(const text::DateTime& date) : held_(date) {}

  bool operator==(const Value&) const = default;

  [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(held_); }

  // Numbers with a decimal point, dates as ISO text, "" for Null.
  [[nodiscard]] std::string text() const;
  // The number, or the number that a text begins with; 0 for Null and anything else. integer() cuts
  // fractions.
  [[nodiscard]] std::int64_t integer() const;
  [[nodiscard]] double real() const;
  // The date, or the date that a text spells in ISO form.
  [[nodiscard]] std::optional<text::DateTime> date() const;

  using Held = std::variant<std::monostate, std::int64_t, double, std::string, text::DateTime>;
  [[nodiscard]] const Held& held() const { return held_; }

 private:
  Held held_;
};

}  // namespace dao
