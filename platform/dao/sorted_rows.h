// Internal: rows that arrive in slices and leave in the order of their sort keys.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/prefix_search.h"

namespace dao {

using Deadline = std::chrono::steady_clock::time_point;

// Sorts by merging: each slice becomes a sorted run, merge() then puts the runs together, a while
// at a time.
class SortedRows {
 public:
  // Most keys begin with `expected`: what follows it is compared first.
  explicit SortedRows(std::string expected) : expected_(std::move(expected)) {}

  void add(std::string_view key, std::string_view name, std::string_view extra);
  // Ends a slice: what was added since the last one becomes a run.
  void closeRun();
  // No row is added after the first call. True when all rows are in order.
  bool merge(Deadline deadline);

  [[nodiscard]] std::span<const PrefixRow> rows() const { return rows_; }

 private:
  struct Entry {
    std::uint64_t head;  // sorts like the key, as far as it tells keys apart
    const char* bytes;   // key, name and extra, one behind the other
    std::uint32_t keySize;
    std::uint32_t nameSize;
    std::uint32_t extraSize;
  };
  using Run = std::vector<Entry>;
  struct Head {
    const Entry* next;
    const Entry* end;
  };

  [[nodiscard]] static bool before(const Entry& left, const Entry& right);
  [[nodiscard]] std::uint64_t headOf(std::string_view key) const;
  [[nodiscard]] char* room(std::size_t size);
  void beginMerge();
  void sink(std::size_t parent);
  void take();

  std::string expected_;
  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t blockSize_ = 0;  // of the last block
  std::size_t left_ = 0;       // its free bytes
  Run open_;
  std::vector<Run> runs_;
  std::size_t total_ = 0;
  std::vector<Head> heap_;
  bool merging_ = false;
  std::vector<PrefixRow> rows_;
};

}  // namespace dao
