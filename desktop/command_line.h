// What can be said on the command line.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace desktop {

struct CommandLine {
  std::string program;  // the name under which the program was started
  std::string folder;   // --folder DIR
  std::string tour;     // --tour DIR
  std::string only;     // --only SCREEN
  bool help = false;    // --help
};

// None, with a line on the error stream, for a word that it does not know.
[[nodiscard]] std::optional<CommandLine> readCommandLine(std::span<char* const> arguments);

inline constexpr auto commandLineHelp =
    "Options:\n"
    "  --folder DIR  the practice's folder, which holds or gets the folder Data\n"
    "  --tour DIR    write pictures of every screen into DIR and end\n"
    "  --only NAME   with --tour: pictures of the screen of that name alone\n"
    "  --help        this text\n"
    "The program's file name selects the speciality.\n";

}  // namespace desktop
