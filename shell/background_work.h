// Long work on files, done in a thread of its own so that the windows keep answering.
#pragma once

#include <functional>
#include <string>

#include "platform/dao/database.h"
#include "shell/station.h"
#include "stores/progress.h"

namespace shell {

struct BackgroundResult {
  dao::Status status;
  bool stopped = false;  // by the user; the status is a fault then
};

// Runs the work and waits for it; when it takes longer than a moment, behind the progress screen,
// where the user can stop it. The work touches nothing of the station: its files are its own.
using FileWork = std::function<dao::Status(const stores::Progress&)>;
[[nodiscard]] BackgroundResult arkadaYap(Station& istasyon, const std::string& title,
                                         const FileWork& work);

}  // namespace shell
