// Pictures of the archive.
#pragma once

#include "desktop/bind/binding.h"
#include "desktop/pictures/archive_frame.h"

namespace desktop {

// The frame tells the control what became of its file; the control's caption is said in its place.
void bind(ArchiveFrame& frame, images::ArchivePicture& picture);

}  // namespace desktop
