#include "desktop/command_line.h"

#include <iostream>
#include <string_view>

namespace desktop {

std::optional<CommandLine> readCommandLine(std::span<char* const> arguments) {
  CommandLine line;
  line.program = arguments.empty() ? std::string() : arguments.front();
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const std::string_view word = arguments[i];
    std::string* const value = word == "--folder" ? &line.folder
                               : word == "--tour" ? &line.tour
                               : word == "--only" ? &line.only
                                                  : nullptr;
    if (word == "--help") {
      line.help = true;
    } else if (value != nullptr && i + 1 < arguments.size()) {
      *value = arguments[++i];
    } else {
      std::cerr << "unknown or incomplete option: " << word << '\n' << commandLineHelp;
      return std::nullopt;
    }
  }
  return line;
}

}  // namespace desktop
