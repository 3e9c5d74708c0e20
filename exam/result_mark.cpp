#include "exam/result_mark.h"

#include <algorithm>

#include "platform/text/number.h"

namespace exam {

namespace {

constexpr std::string_view low = " L";
constexpr std::string_view high = " H";
constexpr std::string_view unmarked = "   ";

bool endsInDigit(std::string_view text) {
  return !text.empty() && text.back() >= '0' && text.back() <= '9';
}

}  // namespace

std::string isaretli(std::string_view result, std::string_view min, std::string_view max) {
  const double value = text::Val(result);
  std::string marked(result);
  if (!min.empty() && text::Val(min) > value) marked += low;
  if (!max.empty() && text::Val(max) < value) marked += high;
  if (endsInDigit(marked)) marked += unmarked;
  return marked;
}

forms::Emphasis vurgu(std::string_view marked) {
  if (marked.ends_with(high)) return forms::Emphasis::High;
  return marked.ends_with(low) ? forms::Emphasis::Low : forms::Emphasis::None;
}

std::string noktali(std::string_view typed) {
  std::string pointed(typed);
  if (text::isNumeric(typed)) std::ranges::replace(pointed, ',', '.');
  return pointed;
}

}  // namespace exam
