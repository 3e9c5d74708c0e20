// A page of a record screen: long texts beside short fields where there is room, below each other
// where there is not.
#pragma once

#include <QBoxLayout>
#include <QWidget>

#include "desktop/layout.h"
#include "platform/forms/label.h"

namespace desktop {

class RecordPage : public QWidget {
  Q_OBJECT
 public:
  explicit RecordPage(QWidget* parent);

  // Makes the control's widget and gives it its place.
  void add(forms::Control& control);
  // Ends the present block: fields that follow stand under it, with the panel's caption above them
  // and shown together with the panel.
  void beginFrame(forms::Panel& frame);
  [[nodiscard]] bool isEmpty() const { return column_->count() == 0; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Block {
    QWidget* home;
    QBoxLayout* sides;
    FieldColumns* longs = nullptr;
    FieldColumns* shorts = nullptr;
  };
  Block& block();
  void begin(QWidget* home);
  void arrange();

  QVBoxLayout* column_;
  std::vector<Block> blocks_;
};

}  // namespace desktop
