#include "documents/page_view.h"

#include <algorithm>

namespace documents {

namespace {

constexpr int smallSteps = 20;
constexpr int largeSteps = 5;

// Where on a side, from 0 to 1, the point stands.
double shareOf(int point, int start, int length) {
  return length <= 0 ? 0 : std::clamp(static_cast<double>(point - start) / length, 0.0, 1.0);
}

void setBar(forms::ScrollBar& bar, int copy, int window, int value) {
  const int excess = std::max(0, copy - window);
  bar.setRange(excess, std::max(1, window / smallSteps), std::max(1, window * 4 / largeSteps));
  bar.setVisible(excess > 0);
  bar.setValue(value);
}

int startOf(int copy, int window, const forms::ScrollBar& bar) {
  return copy > window ? -bar.value() : (window - copy) / 2;
}

}  // namespace

void PageView::setPage(const page::Page* page, page::Size sheet) {
  page_ = page;
  sheet_ = sheet;
  notify(forms::Aspect::Image);
}

void PageView::setFrame(const Frame& frame) {
  if (frame == frame_) return;
  frame_ = frame;
  notify(forms::Aspect::Range);
}

PageScroll::PageScroll(PageView& view, forms::ScrollBar& across, forms::ScrollBar& down)
    : view_(view), across_(across), down_(down) {
  across.Change.connect([this] { place(); });
  down.Change.connect([this] { place(); });
  view.Wheel.connect([this](int up) { down_.setValue(down_.value() + up); });
}

void PageScroll::resize(page::Size copy, Point point) {
  const PageView::Frame& old = view_.frame();
  const double acrossShare = shareOf(point.x, old.left, old.width);
  const double downShare = shareOf(point.y, old.top, old.height);
  copy_ = copy;
  setBar(across_, copy.width, window_.width, static_cast<int>(acrossShare * copy.width) - point.x);
  setBar(down_, copy.height, window_.height, static_cast<int>(downShare * copy.height) - point.y);
  place();
}

void PageScroll::place() {
  view_.setFrame({startOf(copy_.width, window_.width, across_),
                  startOf(copy_.height, window_.height, down_), copy_.width, copy_.height});
}

}  // namespace documents
