// Keys of the toolkit as the screens number them.
#pragma once

#include <QKeyEvent>
#include <functional>

#include "desktop/bind/binding.h"
#include "platform/forms/text_control.h"

namespace desktop {

[[nodiscard]] forms::Key keyOf(const QKeyEvent& event);

// Hands the keys and double clicks of a text widget to its control: a typed character first goes
// through KeyPress, whose handler may replace or eat it; `insert` types what replaces it.
void forwardKeys(Binding& binding, QWidget& widget, forms::TextControl& control,
                 std::function<void(const QString&)> insert);

}  // namespace desktop
