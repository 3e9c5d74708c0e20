// Building blocks of the windows: distances, fields with their captions, and columns that follow
// the width.
#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWidget>
#include <string_view>
#include <vector>

#include "platform/forms/form.h"
#include "platform/forms/label.h"

namespace desktop {

namespace gap {
inline constexpr int small = 6;
inline constexpr int normal = 10;
inline constexpr int large = 16;
}  // namespace gap

// The width of that many average characters in the widget's font.
[[nodiscard]] int characters(const QWidget& widget, int count);

// The page in a scroll area, so that nothing is ever cut off; the owner of both is the parent.
[[nodiscard]] QScrollArea* scrolled(QWidget* page, QWidget& parent);

// A label for the field, right-aligned, whose text and mnemonic follow the field's control.
QLabel* captionFor(QWidget& field);

// The control of that name and type on the form. A layout asks only for controls that its form has.
template <class Control>
Control& control(const forms::Form& form, std::string_view name) {
  return dynamic_cast<Control&>(*form.find(name));
}

// A widget for any control, bound to it; null for one that is never shown (menus and timers have no
// place in a form).
[[nodiscard]] QWidget* makeWidget(forms::Control& control, QWidget& parent);
[[nodiscard]] QWidget* makeWidget(const forms::Form& form, std::string_view name, QWidget& parent);
[[nodiscard]] QLabel* makeLabel(forms::Label& control, QWidget& parent);
// Its room stays when it goes: a bar that comes and goes must not change the size that asked for
// it.
[[nodiscard]] QScrollBar* makeScrollBar(Qt::Orientation orientation, forms::ScrollBar& control,
                                        QWidget& parent);

// What the widget shows, below each other, with the margins of a window.
[[nodiscard]] QVBoxLayout* columnIn(QWidget& widget);

// Fields below each other, in two columns as soon as the room allows.
class FieldColumns : public QWidget {
  Q_OBJECT
 public:
  explicit FieldColumns(QWidget* parent);

  enum class Width { Column, Full };
  void add(QWidget* field, Width width = Width::Column);
  // Takes the room that is left below the fields, and grows.
  void addGrowing(QWidget* field);
  // A widget that says itself what it is, such as a check box.
  void addBare(QWidget* field);
  // At most that many columns, however wide it is.
  void setMostColumns(int columns);
  // One column always fits; a second one never keeps the window wide.
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Row {
    QLabel* caption;  // null for a bare widget
    QWidget* field;
    QLabel* unit;  // null without one
    Width width;
    bool grows;
  };
  void append(QLabel* caption, QWidget* field, Width width, bool grows);
  void arrange(int columns);
  void placeRow(const Row& row, int line, int column, int columns);
  [[nodiscard]] int columnsForWidth() const;

  QGridLayout* grid_;
  std::vector<Row> rows_;
  int columns_ = 0;
  int mostColumns_ = 2;
};

}  // namespace desktop
