// Controls that only show: labels, panels, progress, status, and scroll bars.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QScrollBar>

#include "desktop/bind/binding.h"
#include "platform/forms/label.h"

namespace desktop {

void bind(QLabel& label, forms::Label& control);
// A panel in a stack of pages is bound with Follow::AllButVisible: the stack shows it.
void bind(QWidget& widget, forms::Panel& panel, Follow follow = Follow::All);
// The panel's caption stands over its content.
void bind(QGroupBox& box, forms::Panel& panel);
void bind(QProgressBar& bar, forms::ProgressBar& control);
void bind(QScrollBar& bar, forms::ScrollBar& control);
// One label per panel of the status bar, in their order.
void bindStatus(QWidget& bar, forms::StatusBar& control, const std::vector<QLabel*>& panels);

// Paints the widget's background; without a colour it is the window's own. Text on it stays
// readable.
void setBackColour(QWidget& widget, forms::OptionalColour colour);

}  // namespace desktop
