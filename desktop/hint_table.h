// A table of rows that says what to do when it is empty.
#pragma once

#include <QTableView>

namespace desktop {

// Looks like a list with columns: whole rows are chosen, nothing is drawn between the cells. Rows
// that are added cost the same however many there are. The hint is the table's tool-tip.
class HintTable : public QTableView {
  Q_OBJECT
 public:
  explicit HintTable(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fitRows();
};

}  // namespace desktop
