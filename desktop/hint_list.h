// A list that says what to do when it is empty.
#pragma once

#include <QListView>

namespace desktop {

// The hint is the list's tool-tip.
class HintList : public QListView {
  Q_OBJECT
 public:
  using QListView::QListView;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
