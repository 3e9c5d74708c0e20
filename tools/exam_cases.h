// What is written into examinations: invented, everyday cases.
#pragma once

#include <span>
#include <string_view>

namespace tools {

struct ExamCase {
  std::string_view complaint;
  std::string_view history;
  std::string_view examination;
  std::string_view tests;
  std::string_view diagnosis;
  std::string_view therapy;
  std::string_view advice;
};

// The everyday cases of a speciality; those of general medicine where it has none of its own.
[[nodiscard]] std::span<const ExamCase> examCases(int bransNo);

}  // namespace tools
