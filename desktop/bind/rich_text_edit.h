// A text edit whose content is the seam's editor: what is typed goes there, and the changed
// paragraphs come back.
#pragma once

#include <QPointer>
#include <QTextEdit>

#include "platform/forms/rich_text_box.h"

namespace desktop {

class RichTextEdit : public QTextEdit {
  Q_OBJECT
 public:
  explicit RichTextEdit(QWidget* parent);

  // The control to show and to edit, for as long as `tie` lives.
  void setBox(forms::RichTextBox& box, QObject& tie);
  // Shows the content of the editor again, as far as it differs from what is shown.
  void refresh();
  void refreshSelection();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  // True when the key is an edit, which then is done.
  bool editByKey(const QKeyEvent& event);
  void edit(const std::function<void(richtext::Editor&)>& action);
  void cutSelection();
  void reportSelection();
  [[nodiscard]] std::size_t characterAt(int position) const;
  [[nodiscard]] int positionAt(std::size_t character) const;
  void replaceBlocks(std::size_t first, std::size_t oldCount, std::size_t newCount);

  [[nodiscard]] forms::RichTextBox* box() const { return tie_ == nullptr ? nullptr : box_; }

  forms::RichTextBox* box_ = nullptr;
  QPointer<QObject> tie_;
  std::vector<richtext::Paragraph> shown_;
  bool refreshing_ = false;
};

}  // namespace desktop
