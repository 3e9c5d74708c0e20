#include "scheduling/message_watch.h"

namespace scheduling {

namespace {

constexpr int secondsBetween = 10;

}  // namespace

std::optional<long> MessageWatch::look() {
  if (!isDue()) return std::nullopt;
  MessageStamp now = mesajDurumu(istasyon_);
  if (now == seen_) return std::nullopt;
  // A practice that has never written a message gets no file for it.
  long fresh = 0;
  if (now.size > 0) {
    const auto messages = mesajlar(istasyon_, MessageView::New);
    if (!messages) return std::nullopt;  // the next look may be luckier
    fresh = static_cast<long>(messages->size());
  }
  seen_ = std::move(now);
  return fresh;
}

// A clock that was set back counts as time gone by.
bool MessageWatch::isDue() {
  const text::DateTime now = istasyon_.clock.now();
  const bool sameDay = now.day == lookedAt_.day;
  const int passed = now.seconds - lookedAt_.seconds;
  if (sameDay && passed >= 0 && passed < secondsBetween) return false;
  lookedAt_ = now;
  return true;
}

}  // namespace scheduling
