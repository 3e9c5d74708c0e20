// A list that says what to do when it is empty.
#pragma once

#include <QListView>

namespace desktop {

// Writes the tool-tip of a view without rows into its room.
void paintHint(QAbstractItemView& view);

class HintList : public QListView {
  Q_OBJECT
 public:
  using QListView::QListView;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
