// A list of handlers that are called at once, in the order in which they were connected.
#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace forms {

template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  // A handler stays for the life of the event: screens connect to their own controls.
  void connect(Handler handler) { handlers_.push_back(std::move(handler)); }

  [[nodiscard]] bool heard() const { return !handlers_.empty(); }

  // By index, since a handler may connect another one while it runs; a deque leaves it in its
  // place.
  void operator()(Args... args) const {
    for (std::size_t i = 0; i < handlers_.size(); ++i) handlers_[i](args...);
  }

 private:
  std::deque<Handler> handlers_;
};

}  // namespace forms
