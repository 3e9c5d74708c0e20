#include "tests/architecture/rules.h"

#include <algorithm>
#include <functional>
#include <span>

#include "tests/architecture/arrows.h"

namespace architecture {

namespace {

using Problems = std::vector<std::string>;
using Places = std::span<const std::string_view>;

// Words that stand for something which only some places may use.
struct WordRule {
  std::vector<std::string_view> words;
  std::vector<std::string_view> allowed;  // paths, or beginnings of paths
  std::string_view reason;
};

const std::vector<WordRule> wordRules{
    {{"sqlite3"},
     {"platform/dao/", "tests/platform/dao/", "bench/", "tests/architecture/"},
     "the engine is spoken to in platform/dao alone"},
    {{"std::locale", "setlocale", "toupper(", "tolower(", "isalpha(", "strtod(", "std::stod",
      "std::regex"},
     // The first two prove that the process locale makes no difference.
     {"tests/platform/text/number_test.cpp", "tests/platform/settings/settings_test.cpp",
      "tests/architecture/", "docs/"},
     "the process locale is not ours; platform/text has what is needed"},
    {{"/home/", "/Users/", "C:\\Users\\"},
     {"tests/platform/settings/user_test.cpp", "tests/architecture/"},
     "a path of somebody's machine"},
};

constexpr std::string_view toolkitPlaces[]{"desktop/", "tests/desktop/", "bench/"};

bool standsIn(std::string_view path, Places places) {
  return std::ranges::any_of(places,
                             [&](std::string_view place) { return path.starts_with(place); });
}

bool isCode(std::string_view path) {
  return path.ends_with(".h") || path.ends_with(".cpp");
}

void eachLine(std::string_view text, const std::function<void(int, std::string_view)>& look) {
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = text.substr(0, text.find('\n'));
    look(number, line);
    text.remove_prefix(std::min(line.size() + 1, text.size()));
  }
}

std::string problem(const SourceFile& file, int line, std::string_view what) {
  return file.path + ":" + std::to_string(line) + ": " + std::string(what);
}

bool isWordCharacter(char character) {
  return character == '_' || (character >= 'a' && character <= 'z') ||
         (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
}

// Whether the word stands in the line, and not as the end of a longer one.
bool holdsWord(std::string_view line, std::string_view word) {
  const bool begins = isWordCharacter(word.front());
  for (std::size_t at = line.find(word); at != line.npos; at = line.find(word, at + 1)) {
    if (!begins || at == 0 || !isWordCharacter(line[at - 1])) return true;
  }
  return false;
}

// What an include line names between the two marks; empty for any other line.
std::string_view included(std::string_view line, char open, char close) {
  const std::size_t hash = line.find_first_not_of(" \t");
  if (hash == line.npos || line[hash] != '#') return {};
  line.remove_prefix(hash + 1);
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  if (!line.starts_with("include")) return {};
  const std::size_t begin = line.find(open);
  const std::size_t end = begin == line.npos ? begin : line.find(close, begin + 1);
  return end == line.npos ? std::string_view() : line.substr(begin + 1, end - begin - 1);
}

// Why the file may not include the path, or nothing.
std::string objection(std::string_view from, std::string_view path) {
  const auto to = partOf(path);
  if (!to) return std::string(path) + " is in no part that others may include";
  if (mayInclude(from, *to)) return {};
  return std::string(from) + " does not build on " + std::string(*to);
}

bool belongsToToolkit(std::string_view header) {
  return header.size() > 1 && header[0] == 'Q' && isWordCharacter(header[1]);
}

}  // namespace

// Tests and benchmarks may include what they need; a part only what its arrows reach.
Problems forbiddenIncludes(const SourceFile& file) {
  Problems found;
  const auto part = partOf(file.path);
  const bool free = file.path.starts_with("tests/") || file.path.starts_with("bench/");
  if (!isCode(file.path) || free) return found;
  if (!part) return {file.path + ": the folder is not in the table of arrows"};
  eachLine(file.text, [&](int number, std::string_view line) {
    const std::string_view path = included(line, '"', '"');
    const std::string why = path.empty() ? std::string() : objection(*part, path);
    if (!why.empty()) found.push_back(problem(file, number, why));
  });
  return found;
}

Problems toolkitIncludes(const SourceFile& file) {
  Problems found;
  if (!isCode(file.path) || standsIn(file.path, toolkitPlaces)) return found;
  eachLine(file.text, [&](int number, std::string_view line) {
    if (belongsToToolkit(included(line, '<', '>')) || belongsToToolkit(included(line, '"', '"')))
      found.push_back(problem(file, number, "windows are the business of desktop alone"));
  });
  return found;
}

Problems forbiddenWords(const SourceFile& file) {
  Problems found;
  for (const WordRule& rule : wordRules) {
    if (standsIn(file.path, rule.allowed)) continue;
    eachLine(file.text, [&](int number, std::string_view line) {
      for (const std::string_view word : rule.words) {
        if (!holdsWord(line, word)) continue;
        found.push_back(problem(file, number, std::string(word) + ": ").append(rule.reason));
      }
    });
  }
  return found;
}

Problems tooLong(const SourceFile& file) {
  int lines = 0;
  eachLine(file.text, [&](int number, std::string_view) { lines = number; });
  if (!isCode(file.path) || static_cast<std::size_t>(lines) <= longestFile) return {};
  return {problem(file, lines, "the file is longer than can be held in the head")};
}

Problems foreignName(const SourceFile& file) {
  const bool ascii =
      std::ranges::all_of(file.path, [](char letter) { return letter >= ' ' && letter <= '~'; });
  return ascii ? Problems() : Problems{file.path + ": file names are plain ASCII"};
}

}  // namespace architecture
