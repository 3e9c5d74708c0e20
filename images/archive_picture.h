// A picture file that the window reads in the background: what the screen knows of it, and why it
// shows nothing.
#pragma once

#include <optional>
#include <string_view>

#include "images/picture_fit.h"
#include "platform/forms/label.h"

namespace images {

enum class PictureFault {
  Missing,      // no such file
  Folder,       // a folder, or no ordinary file
  Empty,        // not one byte in it
  Refused,      // there, but this user may not read it
  NotAPicture,  // the content is of no format that can be shown
  Damaged,      // begins as a picture and ends too early, or breaks in the middle
  TooLarge      // more pixels than are read into memory
};

// Its path stays, whatever becomes of the file.
class ArchivePicture : public forms::Picture {
 public:
  using Picture::Picture;

  // Shows a file, or none when the path is empty; the file that is shown already is read again.
  void open(std::string_view path);
  // None while the file is read, and when it cannot be shown.
  [[nodiscard]] std::optional<Extent> natural() const { return natural_; }
  // None while the file is read, and when it is shown.
  [[nodiscard]] std::optional<PictureFault> fault() const { return fault_; }

  // The window reports what became of the file; a repeated report fires nothing.
  void report(Extent natural);
  void report(PictureFault fault);

  // Another file, or another report.
  forms::Event<> Change;
  forms::Event<> RightClick;

 private:
  std::optional<Extent> natural_;
  std::optional<PictureFault> fault_;
};

}  // namespace images
