#include "shell/told_links.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "shell/phrases.h"

namespace shell {

namespace {

// One line for each link: its path, a tab, what it leads to.
constexpr auto toldSetting = "told links";
constexpr std::size_t mostRemembered = 40;

std::vector<FoundLink> told(const Station& istasyon) {
  const std::string kept = istasyon.ayar(toldSetting);
  std::vector<FoundLink> links;
  for (std::string_view rest = kept; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    const std::size_t tab = line.find('\t');
    if (tab == line.npos) continue;
    links.push_back({std::string(line.substr(0, tab)), std::string(line.substr(tab + 1))});
  }
  return links;
}

bool contains(const std::vector<FoundLink>& links, const FoundLink& wanted) {
  return std::ranges::find(links, wanted) != links.end();
}

std::string withoutSlash(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

// A name may hold what separates the remembered ones.
std::string onOneLine(std::string name) {
  std::ranges::replace_if(
      name, [](char c) { return c == '\t' || c == '\n'; }, ' ');
  return name;
}

std::optional<FoundLink> linkAt(const std::string& path) {
  std::error_code none;
  const std::string bare = withoutSlash(path);
  const std::filesystem::path target = std::filesystem::read_symlink(bare, none);
  if (none) return std::nullopt;
  return FoundLink{onOneLine(bare), onOneLine(target.string())};
}

}  // namespace

std::vector<FoundLink> untoldLinks(const Station& istasyon, std::span<const std::string> paths) {
  const std::vector<FoundLink> known = told(istasyon);
  std::vector<FoundLink> fresh;
  for (const std::string& path : paths) {
    const auto link = linkAt(path);
    if (link && !contains(known, *link) && !contains(fresh, *link)) fresh.push_back(*link);
  }
  return fresh;
}

void rememberTold(Station& istasyon, std::span<const FoundLink> links) {
  if (links.empty()) return;
  std::vector<FoundLink> all(links.begin(), links.end());
  for (const FoundLink& old : told(istasyon)) {
    if (all.size() < mostRemembered &&
        std::ranges::find(all, old.path, &FoundLink::path) == all.end())
      all.push_back(old);
  }
  std::string kept;
  for (const FoundLink& link : all) kept += link.path + '\t' + link.target + '\n';
  istasyon.ayarYaz(toldSetting, kept);
}

void tellLinks(Station& istasyon, std::span<const std::string> paths) {
  const std::vector<FoundLink> fresh = untoldLinks(istasyon, paths);
  if (fresh.empty()) return;
  std::string text = phrase(istasyon, Phrase::FoldersAreLinks);
  for (const FoundLink& link : fresh) text += '\n' + link.path + " → " + link.target;
  istasyon.bilgi(text);
  rememberTold(istasyon, fresh);
}

}  // namespace shell
