// What the benchmarks print: ours, a baseline, and whether the goal is reached.
#pragma once

#include <array>
#include <cstdio>
#include <optional>
#include <string>
#include <utility>

namespace bench {

inline constexpr double frame = 16;  // milliseconds until a window seems to stand still

struct Line {
  std::string what;
  double ours = 0;
  std::optional<double> baseline;
  std::string goal;
  bool reached = true;
};

inline void printHeadings() {
  std::printf("%-44s %12s %12s %7s   %s\n", "what (medians)", "ours ms", "baseline ms", "ratio",
              "goal");
}

inline void print(const Line& line) {
  std::printf("%-44s %12.3f ", line.what.c_str(), line.ours);
  if (line.baseline) {
    std::printf("%12.3f %7.2f", *line.baseline, line.ours / *line.baseline);
  } else {
    std::printf("%12s %7s", "-", "-");
  }
  std::printf("   %s: %s\n", line.goal.c_str(), line.reached ? "reached" : "MISSED");
}

inline Line belowFrame(std::string what, double ours) {
  return {std::move(what), ours, std::nullopt, "below 16 ms", ours < frame};
}

inline Line atMost(std::string what, double ours, double baseline, double ratio) {
  std::array<char, 32> goal{};
  std::snprintf(goal.data(), goal.size(), "ratio below %.1f", ratio);
  return {std::move(what), ours, baseline, goal.data(), ours < ratio * baseline};
}

}  // namespace bench
