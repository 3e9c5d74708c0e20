// A text box of several lines that grows with its text.
#pragma once

#include <QPlainTextEdit>

namespace desktop {

class GrowingText : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit GrowingText(QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void insertFromMimeData(const QMimeData* source) override;

 private:
  // High enough for the text, between two limits.
  [[nodiscard]] int wantedHeight() const;

  int lines_ = 0;
};

}  // namespace desktop
