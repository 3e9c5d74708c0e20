// A printer that keeps what it was given, or fails on demand.
#pragma once

#include <string>
#include <vector>

#include "platform/page/printer.h"
#include "tests/support/fixed_metrics.h"

namespace support {

// The texts of a page with their places, one per line: "567,300 text".
[[nodiscard]] inline std::vector<std::string> texts(const page::Page& page) {
  std::vector<std::string> lines;
  for (const page::Operation& operation : page.operations) {
    const auto* const text = std::get_if<page::Text>(&operation);
    if (text == nullptr) continue;
    lines.push_back(std::to_string(text->x) + "," + std::to_string(text->y) + " " + text->text);
  }
  return lines;
}

template <class Operation>
[[nodiscard]] std::vector<Operation> all(const page::Page& page) {
  std::vector<Operation> found;
  for (const page::Operation& operation : page.operations) {
    if (const auto* const wanted = std::get_if<Operation>(&operation)) found.push_back(*wanted);
  }
  return found;
}

class ScriptedPrinter : public page::Printer {
 public:
  struct Job {
    std::string title;
    page::Target target;
    page::Pages pages;
  };

  [[nodiscard]] const page::Metrics& metrics() const override { return fixed; }
  [[nodiscard]] std::vector<std::string> printers() const override { return names; }
  [[nodiscard]] platform::Status print(const std::string& title, const page::Target& target,
                                       const page::Pages& pages) override {
    jobs.push_back({title, target, pages});
    return answer;
  }

  FixedMetrics fixed;
  std::vector<std::string> names;
  platform::Status answer;
  std::vector<Job> jobs;
};

}  // namespace support
