#include "platform/forms/label.h"

#include <algorithm>

namespace forms {

void Label::setBackColour(OptionalColour colour) {
  if (std::exchange(backColour_, colour) != colour) notify(Aspect::Paint);
}

void Panel::setBackColour(OptionalColour colour) {
  if (std::exchange(backColour_, colour) != colour) notify(Aspect::Paint);
}

void Picture::setPath(std::string_view path) {
  if (path == path_) return;
  path_ = std::string(path);
  notify(Aspect::Image);
}

void Picture::setFrame(const Frame& frame) {
  if (frame == frame_) return;
  frame_ = frame;
  notify(Aspect::Range);
}

void ProgressBar::setRange(long maximum) {
  maximum_ = std::max(0L, maximum);
  value_ = std::min(value_, maximum_);
  notify(Aspect::Range);
}

void ProgressBar::setValue(long value) {
  value_ = std::clamp(value, 0L, maximum_);
  notify(Aspect::Range);
}

void StatusBar::setPanel(std::size_t number, std::string text) {
  std::string& panel = panels_.at(number - 1);
  if (panel == text) return;
  panel = std::move(text);
  notify(Aspect::Text);
}

void ScrollBar::setRange(int maximum, int smallChange, int largeChange) {
  maximum_ = std::max(0, maximum);
  smallChange_ = std::max(1, smallChange);
  largeChange_ = std::max(1, largeChange);
  notify(Aspect::Range);
  setValue(value_);
}

void ScrollBar::setValue(int value) {
  const int clamped = std::clamp(value, 0, maximum_);
  if (std::exchange(value_, clamped) == clamped) return;
  notify(Aspect::Selection);
  Change();
}

}  // namespace forms
