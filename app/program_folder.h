// Which folder a station works in.
#pragma once

#include <string>

namespace app {

struct FolderChoices {
  std::string programFile;  // the path of the program's own file
  std::string option;       // given on the command line
  std::string environment;  // SANAVEL_FOLDER
  std::string userData;     // the user's data folder
};

// What the user names comes first; then the program's own folder, when it holds `Data` or may
// create it; then a folder in the user's data.
[[nodiscard]] std::string programFolder(const FolderChoices& choices);

}  // namespace app
