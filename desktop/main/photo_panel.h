// Left of the card: the photograph on the colour of the sex, the patient in short, and the file
// numbers.
#pragma once

#include <QLabel>
#include <QWidget>

#include "registry/frm_main.h"

namespace desktop {

class PhotoPanel : public QWidget {
  Q_OBJECT
 public:
  PhotoPanel(registry::FrmMain& form, QWidget* parent);
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makePhotograph();
  QWidget* makeAge();
  QWidget* makeNumbers();
  void showSummary();

  registry::FrmMain& form_;
  QWidget* photograph_;
  QLabel* summary_ = nullptr;
};

}  // namespace desktop
