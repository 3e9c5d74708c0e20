// An invented practice of any size, for trying the program out and for measuring it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/status/status.h"
#include "platform/text/date.h"

namespace tools {

struct PracticeOptions {
  std::size_t patients = 1000;
  std::uint64_t seed = 1;
  // Nobody is born and nothing happens later than on this day.
  text::DateTime reference = text::DateTime::of(2026, 11, 22);
};

// Told after every few thousand patients how many are stored.
using Progress = std::function<void(std::size_t stored)>;

// Fills the stores of the program's folder, which is created when missing. Equal options make equal
// practices. Exists when the folder has patients already; after another fault the folder holds a
// part of the practice.
[[nodiscard]] platform::Status makePractice(const std::string& folder,
                                            const PracticeOptions& options,
                                            const Progress& progress = {});

}  // namespace tools
