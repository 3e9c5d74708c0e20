// The table that shows a grid: it copies what is marked, and says what to do when it is empty.
#pragma once

#include <QTableView>

namespace desktop {

// The hint is the table's tool-tip.
class GridTable : public QTableView {
  Q_OBJECT
 public:
  explicit GridTable(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fitRows();
  void copyMarked() const;
};

}  // namespace desktop
