// A page on the screen, and how it is moved under its window.
#pragma once

#include "platform/forms/label.h"
#include "platform/page/page.h"

namespace documents {

struct Point {
  int x = 0;
  int y = 0;
};

// Draws one page into its frame; the rest of the control is desk. Frame and points are pixels of
// the control.
class PageView : public forms::Control {
 public:
  using Control::Control;

  // The page outlives the control or is replaced before it goes; null shows an empty desk.
  [[nodiscard]] const page::Page* page() const { return page_; }
  [[nodiscard]] page::Size sheet() const { return sheet_; }
  void setPage(const page::Page* page, page::Size sheet);

  using Frame = forms::Picture::Frame;
  [[nodiscard]] const Frame& frame() const { return frame_; }
  void setFrame(const Frame& frame);

  forms::Event<Point> Click;
  forms::Event<int, int> Resize;
  // The wheel was turned: how far the page is to go up.
  forms::Event<int> Wheel;

 private:
  const page::Page* page_ = nullptr;
  page::Size sheet_;
  Frame frame_;
};

// Keeps the page in its window: in the middle where there is room, under scroll bars where there is
// none.
class PageScroll {
 public:
  PageScroll(PageView& view, forms::ScrollBar& across, forms::ScrollBar& down);

  [[nodiscard]] page::Size window() const { return window_; }
  void setWindow(int width, int height) { window_ = {width, height}; }
  [[nodiscard]] Point middle() const { return {window_.width / 2, window_.height / 2}; }
  // Shows the page in that size; what of it stands at the point stays there.
  void resize(page::Size copy, Point point);

 private:
  void place();

  PageView& view_;
  forms::ScrollBar& across_;
  forms::ScrollBar& down_;
  page::Size window_;
  page::Size copy_;
};

}  // namespace documents
