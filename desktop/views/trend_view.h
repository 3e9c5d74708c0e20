// The window with the course of one laboratory test.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

std::unique_ptr<QWidget> testTrendView(forms::Form& form);

}  // namespace desktop
