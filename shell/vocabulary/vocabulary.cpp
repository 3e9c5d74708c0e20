#include "shell/vocabulary/vocabulary.h"

#include <unordered_map>
#include <vector>

#include "shell/vocabulary/topics.h"

namespace shell {
namespace {

std::vector<Row> allRows() {
  std::vector<Row> all;
  for (const auto topic : topics::all()) all.insert(all.end(), topic.begin(), topic.end());
  return all;
}

const Row* rowOf(std::string_view key) {
  static const auto index = [] {
    std::unordered_map<std::string_view, const Row*> byKey;
    for (const Row& row : rows()) byKey.emplace(row.key, &row);
    return byKey;
  }();
  const auto found = index.find(key);
  return found == index.end() ? nullptr : found->second;
}

}  // namespace

std::span<const Row> rows() {
  static const std::vector<Row> all = allRows();
  return all;
}

std::optional<std::string_view> turkcemetin(std::string_view key) {
  const Row* row = rowOf(key);
  if (row == nullptr || row->kind == RowKind::EnglishOnly) return std::nullopt;
  return row->turkish;
}

std::optional<std::string_view> ingilizcemetin(std::string_view key) {
  const Row* row = rowOf(key);
  if (row == nullptr || row->kind == RowKind::TurkishOnly) return std::nullopt;
  return row->english;
}

std::string_view lookUp(std::string_view key, Language language) {
  const auto own = language == Language::Turkish ? turkcemetin(key) : ingilizcemetin(key);
  const std::string_view text = own.value_or(key);
  return turkcemetin(text).value_or(text);
}

}  // namespace shell
