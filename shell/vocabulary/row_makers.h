// The makers that the topics are written with: the name of the maker says the kind of the row.
#pragma once

#include <string_view>

#include "shell/vocabulary/row.h"

namespace shell {

consteval Row both(std::string_view key, std::string_view english, std::string_view turkish) {
  return {RowKind::Both, key, english, turkish};
}

consteval Row untranslated(std::string_view key, std::string_view turkish) {
  return {RowKind::Untranslated, key, turkish, turkish};
}

consteval Row unfinished(std::string_view key, std::string_view turkish) {
  return {RowKind::Unfinished, key, key, turkish};
}

consteval Row turkishOnly(std::string_view key, std::string_view turkish) {
  return {RowKind::TurkishOnly, key, {}, turkish};
}

consteval Row englishOnly(std::string_view key, std::string_view english) {
  return {RowKind::EnglishOnly, key, english, {}};
}

}  // namespace shell
