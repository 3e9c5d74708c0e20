// Chance that comes out the same for the same seed on every machine and with every library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tools {

class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  [[nodiscard]] std::uint64_t next();
  // 0 to n - 1, all alike. Precondition: n > 0.
  [[nodiscard]] std::size_t below(std::size_t n);
  // 0 to n - 1, the first ones far more often, as with names in a people. Precondition: n > 0.
  [[nodiscard]] std::size_t ranked(std::size_t n);
  [[nodiscard]] bool percent(unsigned share) { return below(100) < share; }

  template <class Row>
  [[nodiscard]] const Row& pick(std::span<const Row> rows) {
    return rows[below(rows.size())];
  }
  template <class Row>
  [[nodiscard]] const Row& pickRanked(std::span<const Row> rows) {
    return rows[ranked(rows.size())];
  }

 private:
  std::uint64_t state_;
};

}  // namespace tools
