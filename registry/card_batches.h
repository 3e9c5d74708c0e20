// Writing many cards without a durable transaction for each of them.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "platform/dao/database.h"

namespace registry {

// A batch is one transaction. A batch with a card that is refused is written again card by card, so
// that only the refused one is left out.
class CardBatches {
 public:
  using Writer = std::function<dao::Status(const std::string& name)>;

  CardBatches(dao::Database& personal, Writer writer)
      : personal_(personal), writer_(std::move(writer)) {}

  // A fault of the store itself (busy, full, read-only), where going on is no use. The cards of
  // this call are not written then, or only the first of them.
  dao::Status write(std::span<const std::string> names);

  [[nodiscard]] std::int64_t written() const { return written_; }
  [[nodiscard]] std::int64_t refused() const { return refused_; }

 private:
  [[nodiscard]] dao::Status together(std::span<const std::string> names);

  dao::Database& personal_;
  Writer writer_;
  std::int64_t written_ = 0;
  std::int64_t refused_ = 0;
};

}  // namespace registry
