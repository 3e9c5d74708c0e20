// Controls that show something: labels, panels, pictures, progress and status.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/forms/colour.h"
#include "platform/forms/control.h"

namespace forms {

// A different caption fires Change.
class Label : public Control {
 public:
  using Control::Control;

  [[nodiscard]] OptionalColour backColour() const { return backColour_; }
  void setBackColour(OptionalColour colour);

  Event<> Change;
  Event<> DblClick;

 protected:
  void captionChanged() override { Change(); }

 private:
  OptionalColour backColour_;
};

// A container that is shown and hidden as a whole.
class Panel : public Control {
 public:
  using Control::Control;

  [[nodiscard]] OptionalColour backColour() const { return backColour_; }
  void setBackColour(OptionalColour colour);

 private:
  OptionalColour backColour_;
};

// A picture by its path, stretched to fit; an empty path or a file that is no picture shows an
// empty frame.
class Picture : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::string& path() const { return path_; }
  void setPath(std::string_view path);
  // Where the fitted picture stands in its frame.
  struct Frame {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Frame&) const = default;
  };
  [[nodiscard]] const Frame& frame() const { return frame_; }
  void setFrame(const Frame& frame);

  Event<> Click;
  Event<> DblClick;
  // The window gave the frame another size: width and height in pixels.
  Event<int, int> Resize;

 private:
  std::string path_;
  Frame frame_;
};

class ProgressBar : public Control {
 public:
  using Control::Control;

  [[nodiscard]] long value() const { return value_; }
  [[nodiscard]] long maximum() const { return maximum_; }
  void setRange(long maximum);
  // Values beyond the range are clamped.
  void setValue(long value);

 private:
  long value_ = 0;
  long maximum_ = 100;
};

// Panels are numbered from 1.
class StatusBar : public Control {
 public:
  StatusBar(Form& form, std::string_view name, std::size_t panels)
      : Control(form, name), panels_(panels) {}

  [[nodiscard]] const std::vector<std::string>& panels() const { return panels_; }
  void setPanel(std::size_t number, std::string text);

 private:
  std::vector<std::string> panels_;
};

class ScrollBar : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int value() const { return value_; }
  [[nodiscard]] int maximum() const { return maximum_; }
  [[nodiscard]] int smallChange() const { return smallChange_; }
  [[nodiscard]] int largeChange() const { return largeChange_; }
  void setRange(int maximum, int smallChange, int largeChange);
  // Clamped to 0..maximum; a different value fires Change.
  void setValue(int value);

  Event<> Change;

 private:
  int value_ = 0;
  int maximum_ = 0;
  int smallChange_ = 1;
  int largeChange_ = 1;
};

}  // namespace forms
