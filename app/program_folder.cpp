#include "app/program_folder.h"

#include <filesystem>

#include "platform/files/folders.h"

namespace app {

std::string programFolder(const FolderChoices& choices) {
  if (!choices.option.empty()) return choices.option;
  if (!choices.environment.empty()) return choices.environment;
  const std::filesystem::path own = std::filesystem::path(choices.programFile).parent_path();
  std::error_code error;
  if (std::filesystem::is_directory(own / "Data", error) || files::isWritable(own))
    return own.string();
  return (std::filesystem::path(choices.userData) / "Sanavel").string();
}

}  // namespace app
