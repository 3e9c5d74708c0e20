// Where finished pages go: a printer of the system, or a PDF file.
#pragma once

#include <string>
#include <vector>

#include "platform/page/metrics.h"
#include "platform/page/page.h"
#include "platform/status/status.h"

namespace page {

// A printer by its name, or, without one, the path of a PDF file.
struct Target {
  std::string printer;
  std::string file;
  bool operator==(const Target&) const = default;
};

class Printer {
 public:
  virtual ~Printer() = default;

  [[nodiscard]] virtual const Metrics& metrics() const = 0;
  // The names of the system's printers, the usual one first.
  [[nodiscard]] virtual std::vector<std::string> printers() const = 0;
  // Draws all pages under that title. The text of a failure names the printer or the file; a file
  // that could not be written whole is left as it was before.
  [[nodiscard]] virtual platform::Status print(const std::string& title, const Target& target,
                                               const Pages& pages) = 0;
};

}  // namespace page
