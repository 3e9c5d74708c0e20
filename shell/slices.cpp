#include "shell/slices.h"

#include <utility>

namespace shell {

void Slices::start(Slice slice) {
  work_ = std::make_shared<Slice>(std::move(slice));
  run(std::shared_ptr<Slice>(work_));
}

void Slices::run(const std::shared_ptr<Slice>& work) {
  const bool done = (*work)();
  if (work_ != work) return;  // stopped meanwhile, or other work was begun
  if (done) return stop();
  // A task that comes after the end finds no work, and this object gone perhaps.
  host_.later([this, put = std::weak_ptr<Slice>(work)] {
    if (const auto again = put.lock()) run(again);
  });
}

}  // namespace shell
