// Screens by name, so that a screen opens another subsystem's screen without including it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/forms/form.h"

namespace shell {

struct Station;

class ScreenDirectory {
 public:
  using Maker = std::function<std::unique_ptr<forms::Form>(Station&)>;

  void add(std::string_view name, Maker maker) {
    makers_.insert_or_assign(std::string(name), std::move(maker));
  }
  [[nodiscard]] bool has(std::string_view name) const { return makers_.contains(name); }
  // A new, not yet loaded screen; null for a name that nobody registered.
  [[nodiscard]] std::unique_ptr<forms::Form> make(std::string_view name, Station& istasyon) const {
    const auto found = makers_.find(name);
    return found == makers_.end() ? nullptr : found->second(istasyon);
  }
  [[nodiscard]] const std::map<std::string, Maker, std::less<>>& all() const { return makers_; }

 private:
  std::map<std::string, Maker, std::less<>> makers_;
};

}  // namespace shell
