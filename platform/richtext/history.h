// The undo list of an editor: each step keeps only what it removed and what it put there.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/richtext/document.h"

namespace richtext {

// Typing, Backspace and Delete join neighbouring steps of their kind into one; Other stands alone.
enum class EditKind { Typing, Backspace, Delete, Other };

struct EditStep {
  EditKind kind = EditKind::Other;
  std::size_t position = 0;
  Document removed;
  Document inserted;
  Range selectionBefore;
  Range selectionAfter;

  [[nodiscard]] Range insertedRange() const { return {position, position + inserted.length()}; }
  [[nodiscard]] Range removedRange() const { return {position, position + removed.length()}; }
};

// Keeps the last hundred steps.
class History {
 public:
  void record(EditStep step);
  // The next step starts a group of its own (the caret moved, the text was saved).
  void closeGroup() { groupOpen_ = false; }
  void clear();

  [[nodiscard]] bool canUndo() const { return done_ > 0; }
  [[nodiscard]] bool canRedo() const { return done_ < steps_.size(); }
  // Precondition: canUndo(), canRedo(). The step stays owned by the history.
  const EditStep& stepBack();
  const EditStep& stepForward();

  [[nodiscard]] bool modified() const { return dropped_ + done_ != saved_; }
  void markSaved();

 private:
  void dropRedo();
  [[nodiscard]] bool joinedToLast(EditStep& step);

  std::vector<EditStep> steps_;
  std::size_t done_ = 0;     // steps that are applied; those behind can be redone
  std::size_t dropped_ = 0;  // steps that fell out of the list at its front
  std::size_t saved_ = 0;    // dropped_ + done_ at the moment of saving
  bool groupOpen_ = false;
};

}  // namespace richtext
