// The one look of all record screens: the patient's banner, the toolbar, the dates at the left, the
// record at the right.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

// For a form that is a DatedRecordScreen. Fields stand in the order of the screen's controls: those
// before the first tab strip or panel over the pages, the others on the panel that they follow. A
// panel that no tab stands for is a frame on the page before it.
std::unique_ptr<QWidget> recordView(forms::Form& form);

}  // namespace desktop
