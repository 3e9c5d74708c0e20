// The table that shows a grid: ranges can be marked, and what is marked can be copied.
#pragma once

#include "desktop/hint_table.h"

namespace desktop {

class GridTable : public HintTable {
  Q_OBJECT
 public:
  explicit GridTable(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void copyMarked() const;
};

}  // namespace desktop
