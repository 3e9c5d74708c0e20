// Pictures.
#pragma once

#include "desktop/bind/binding.h"
#include "desktop/picture_frame.h"

namespace desktop {

void bind(PictureFrame& frame, forms::Picture& picture);

}  // namespace desktop
