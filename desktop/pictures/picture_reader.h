// Reading picture files: bounded in memory, upright, and with a reason when nothing comes of it.
#pragma once

#include <QImage>
#include <functional>
#include <optional>

#include "images/archive_picture.h"

namespace desktop {

struct ReadPicture {
  QImage image;
  QSize natural;  // as it stands after the camera's rotation
  std::optional<images::PictureFault> fault;
};

// The file decoded to at most `limit` pixels each way; an empty limit is none. Any thread may call.
// `stopped` is asked before each piece of the file; once it says yes the rest counts as missing.
[[nodiscard]] ReadPicture readPicture(const QString& path, const QSize& limit,
                                      const std::function<bool()>& stopped = {});

// By the head of the file alone.
[[nodiscard]] bool isPicture(const QString& path);

}  // namespace desktop
