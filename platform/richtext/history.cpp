#include "platform/richtext/history.h"

#include <iterator>
#include <limits>
#include <utility>

namespace richtext {
namespace {

constexpr std::size_t kMostSteps = 100;
constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

// Paragraph breaks stand as steps of their own, so that undo goes back line by line.
bool isWithinParagraph(const Document& fragment) {
  return fragment.paragraphs().size() == 1;
}

void appendExactly(Document& to, const Document& fragment) {
  to.splice({to.length(), to.length()}, fragment);
}

void joinTyping(EditStep& last, const EditStep& step) {
  appendExactly(last.inserted, step.inserted);
}

void joinBackspace(EditStep& last, EditStep& step) {
  appendExactly(step.removed, last.removed);
  last.removed = std::move(step.removed);
  last.inserted = std::move(step.inserted);
  last.position = step.position;
}

void joinDelete(EditStep& last, EditStep& step) {
  appendExactly(last.removed, step.removed);
  last.inserted = std::move(step.inserted);
}

bool follows(const EditStep& last, const EditStep& step) {
  switch (step.kind) {
    case EditKind::Typing:
      return step.removed.empty() && step.position == last.insertedRange().end;
    case EditKind::Backspace:
      return step.removedRange().end == last.position;
    case EditKind::Delete:
      return step.position == last.position;
    case EditKind::Other:
      break;
  }
  return false;
}

}  // namespace

void History::record(EditStep step) {
  dropRedo();
  const bool joins = isWithinParagraph(step.removed) && isWithinParagraph(step.inserted);
  if (!(groupOpen_ && joins && joinedToLast(step))) {
    steps_.push_back(std::move(step));
    ++done_;
  }
  groupOpen_ = joins;
  if (steps_.size() <= kMostSteps) return;
  steps_.erase(steps_.begin());
  --done_;
  ++dropped_;
}

void History::clear() {
  *this = History();
}

const EditStep& History::stepBack() {
  closeGroup();
  return steps_[--done_];
}

const EditStep& History::stepForward() {
  closeGroup();
  return steps_[done_++];
}

void History::markSaved() {
  saved_ = dropped_ + done_;
  closeGroup();
}

// A saved state among the steps that can no longer be redone is out of reach for good.
void History::dropRedo() {
  if (saved_ != kNever && saved_ > dropped_ + done_) saved_ = kNever;
  steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
}

bool History::joinedToLast(EditStep& step) {
  if (steps_.empty() || steps_.back().kind != step.kind || !follows(steps_.back(), step))
    return false;
  EditStep& last = steps_.back();
  if (step.kind == EditKind::Typing) joinTyping(last, step);
  if (step.kind == EditKind::Backspace) joinBackspace(last, step);
  if (step.kind == EditKind::Delete) joinDelete(last, step);
  last.selectionAfter = step.selectionAfter;
  return true;
}

}  // namespace richtext
