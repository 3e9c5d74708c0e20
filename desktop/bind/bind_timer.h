// The event loop drives a form's timer.
#pragma once

#include <QObject>

#include "platform/forms/menu.h"

namespace desktop {

// Ticks while the timer is enabled and `window` lives.
void bind(QObject& window, forms::Timer& timer);

}  // namespace desktop
