#include "platform/dao/value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace dao {
namespace {

template <class... Cases>
struct Match : Cases... {
  using Cases::operator()...;
};

template <class Number>
std::string spelled(Number number) {
  std::array<char, 32> room;
  const auto end = std::to_chars(room.data(), room.data() + room.size(), number).ptr;
  return {room.data(), end};
}

template <class Number>
Number leading(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  Number number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::int64_t whole(double number) {
  constexpr double limit = 9.2e18;
  if (std::isnan(number)) return 0;
  if (std::abs(number) < limit) return static_cast<std::int64_t>(number);
  using Limits = std::numeric_limits<std::int64_t>;
  return number < 0 ? Limits::min() : Limits::max();
}

}  // namespace

std::string Value::text() const {
  return std::visit(Match{[](std::monostate) { return std::string(); },
                          [](std::int64_t number) { return spelled(number); },
                          [](double number) { return spelled(number); },
                          [](const std::string& text) { return text; },
                          [](const text::DateTime& date) { return text::isoText(date); }},
                    held_);
}

std::int64_t Value::integer() const {
  if (const auto* number = std::get_if<std::int64_t>(&held_)) return *number;
  if (const auto* text = std::get_if<std::string>(&held_)) return leading<std::int64_t>(*text);
  return whole(real());
}

double Value::real() const {
  if (const auto* number = std::get_if<double>(&held_)) return *number;
  if (const auto* number = std::get_if<std::int64_t>(&held_)) return static_cast<double>(*number);
  if (const auto* text = std::get_if<std::string>(&held_)) return leading<double>(*text);
  return 0;
}

std::optional<text::DateTime> Value::date() const {
  if (const auto* date = std::get_if<text::DateTime>(&held_)) return *date;
  if (const auto* text = std::get_if<std::string>(&held_)) return text::parseIso(*text);
  return std::nullopt;
}

}  // namespace dao
