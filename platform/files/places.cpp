#include "platform/files/places.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace files {
namespace {

namespace fs = std::filesystem;

constexpr std::array userFolders{"/media/", "/mnt/", "/run/media/", "/Volumes/"};
constexpr std::array networks{"nfs", "nfs4", "cifs", "smb3", "smbfs", "fuse.sshfs"};

bool isForPeople(const std::string& point, const std::string& kind) {
  return std::ranges::any_of(userFolders,
                             [&](const char* folder) { return point.starts_with(folder); }) ||
         std::ranges::find(networks, kind) != networks.end();
}

// A blank and other signs stand as an octal number behind a backslash.
std::string unescaped(const std::string& name) {
  constexpr std::size_t digits = 3;
  std::string text;
  for (std::size_t at = 0; at < name.size(); ++at) {
    const bool escape = name[at] == '\\' && at + digits < name.size();
    if (!escape) {
      text += name[at];
      continue;
    }
    text += static_cast<char>(std::strtol(name.substr(at + 1, digits).c_str(), nullptr, 8));
    at += digits;
  }
  return text;
}

}  // namespace

std::vector<fs::path> mountPoints(std::string_view table) {
  std::vector<fs::path> points;
  std::istringstream lines{std::string(table)};
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string device;
    std::string point;
    std::string kind;
    fields >> device >> point >> kind;
    point = unescaped(point);
    if (isForPeople(point, kind)) points.emplace_back(point);
  }
  return points;
}

fs::path home() {
  const char* folder = std::getenv("HOME");
  return folder == nullptr || *folder == '\0' ? fs::path("/") : fs::path(folder);
}

std::vector<fs::path> places() {
  std::vector<fs::path> all{home()};
  if (all.front() != "/") all.emplace_back("/");
  std::ifstream mounts("/proc/self/mounts");
  const std::string table{std::istreambuf_iterator<char>(mounts), {}};
  std::ranges::copy(mountPoints(table), std::back_inserter(all));
  return all;
}

std::vector<fs::path> foldersIn(const fs::path& folder) {
  std::vector<fs::path> found;
  std::error_code error;
  fs::directory_iterator entries(folder, fs::directory_options::skip_permission_denied, error);
  for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
    std::error_code unreachable;
    const bool hidden = entries->path().filename().string().starts_with('.');
    if (!hidden && entries->is_directory(unreachable)) found.push_back(entries->path().filename());
  }
  std::ranges::sort(found);
  return found;
}

}  // namespace files
