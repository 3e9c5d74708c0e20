// Internal: how texts compare.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/dao/definition.h"

struct UCollator;

namespace dao {

// Compares at secondary strength: case is ignored, accents are not. Trailing blanks never count.
class Collator {
 public:
  explicit Collator(Order order);

  [[nodiscard]] bool usable() const { return collator_ != nullptr; }
  [[nodiscard]] int compare(std::string_view left, std::string_view right) const;
  // Bytes that compare like the text: memcmp of two keys has the sign of compare().
  [[nodiscard]] std::string key(std::string_view text) const;
  // Changes whenever keys made before may differ from keys made now.
  [[nodiscard]] std::string version() const;

 private:
  struct Closer {
    void operator()(UCollator* collator) const;
  };
  std::unique_ptr<UCollator, Closer> collator_;
};

// The name under which a file's declarations know the order.
[[nodiscard]] constexpr std::string_view collationName(Order order) {
  return order == Order::Turkish ? "STORE_TURKISH" : "STORE_GENERAL";
}

}  // namespace dao
