// Fills a folder with an invented practice: make_practice FOLDER [--patients N] [--seed S]
// [--date YYYY-MM-DD].
#include <cstdio>
#include <optional>
#include <span>
#include <string_view>

#include "platform/text/number.h"
#include "tools/practice.h"

namespace {

constexpr auto usage =
    "usage: make_practice FOLDER [--patients N] [--seed S] [--date YYYY-MM-DD]\n"
    "Fills the stores of FOLDER with N (1000) invented patients as of the date (2026-11-22);\n"
    "equal seeds give equal practices.\n";

struct Request {
  std::string folder;
  tools::PracticeOptions options;
};

bool readOption(std::string_view name, std::string_view value, tools::PracticeOptions& options) {
  if (name == "--date") {
    const auto date = text::parseIso(value);
    options.reference = date.value_or(options.reference);
    return date.has_value();
  }
  const auto number = text::wholeNumber(value);
  if (!number || *number < 0) return false;
  if (name == "--patients") options.patients = static_cast<std::size_t>(*number);
  if (name == "--seed") options.seed = static_cast<std::uint64_t>(*number);
  return name == "--patients" || name == "--seed";
}

std::optional<Request> parse(std::span<char* const> words) {
  if (words.size() % 2 == 0 || std::string_view(words[0]).starts_with('-')) return std::nullopt;
  Request request{words[0], {}};
  for (std::size_t at = 1; at + 1 < words.size(); at += 2) {
    if (!readOption(words[at], words[at + 1], request.options)) return std::nullopt;
  }
  return request;
}

}  // namespace

int main(int count, char** words) {
  const auto request =
      parse(std::span<char* const>(words, static_cast<std::size_t>(count)).subspan(1));
  if (!request) {
    std::fputs(usage, stderr);
    return 2;
  }
  const std::size_t wanted = request->options.patients;
  const platform::Status made =
      tools::makePractice(request->folder, request->options, [wanted](std::size_t stored) {
        std::fprintf(stderr, "\r%zu of %zu patients", stored, wanted);
      });
  std::fputs("\n", stderr);
  if (made) return 0;
  std::fprintf(stderr, "%s\n", made.text().c_str());
  return 1;
}
