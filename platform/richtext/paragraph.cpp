#include "platform/richtext/paragraph.h"

#include <iterator>
#include <utility>

#include "platform/richtext/utf8.h"

namespace richtext {

void normalise(Paragraph& paragraph) {
  std::vector<Run>& runs = paragraph.runs;
  if (runs.empty()) runs.emplace_back();
  std::size_t kept = 0;
  for (std::size_t next = 1; next < runs.size(); ++next) {
    if (runs[next].text.empty()) continue;
    if (runs[kept].text.empty()) {
      runs[kept] = std::move(runs[next]);
    } else if (runs[kept].format == runs[next].format) {
      runs[kept].text += runs[next].text;
    } else if (++kept != next) {
      runs[kept] = std::move(runs[next]);
    }
  }
  runs.erase(runs.begin() + static_cast<std::ptrdiff_t>(kept) + 1, runs.end());
}

std::vector<Run> splitRuns(Paragraph& paragraph, std::size_t characters) {
  std::vector<Run>& runs = paragraph.runs;
  std::vector<Run> rest;
  std::size_t index = 0;
  for (; index < runs.size() && characters > 0; ++index) {
    Run& run = runs[index];
    const std::size_t bytes = byteOffset(run.text, characters);
    if (bytes < run.text.size()) {
      rest.push_back({run.text.substr(bytes), run.format});
      run.text.resize(bytes);
      ++index;
      break;
    }
    characters -= characterCount(run.text);
  }
  const auto cut = runs.begin() + static_cast<std::ptrdiff_t>(index);
  rest.insert(rest.end(), std::make_move_iterator(cut), std::make_move_iterator(runs.end()));
  runs.erase(cut, runs.end());
  return rest;
}

}  // namespace richtext
