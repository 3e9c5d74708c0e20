// Links where the practice's own files and folders are expected. Whoever set one up on purpose
// wants to hear of it once; whoever did not has to.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "shell/station.h"

namespace shell {

struct FoundLink {
  std::string path;
  std::string target;  // as the link says it

  bool operator==(const FoundLink&) const = default;
};

// Those of the paths that are links whose present target this user was not told of yet. A path
// that is no link, or not there, is passed over; a slash at its end makes no difference.
[[nodiscard]] std::vector<FoundLink> untoldLinks(const Station& istasyon,
                                                 std::span<const std::string> paths);
// They are not told of again until they lead somewhere else.
void rememberTold(Station& istasyon, std::span<const FoundLink> links);

// Both, with one box between them that names them all; no box when there is nothing to tell.
void tellLinks(Station& istasyon, std::span<const std::string> paths);

}  // namespace shell
