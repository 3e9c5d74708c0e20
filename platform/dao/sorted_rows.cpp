#include "platform/dao/sorted_rows.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace dao {
namespace {

constexpr std::size_t kBlock = 256 * 1024;
constexpr int kRowsBetweenLooks = 64;

char* put(char* to, std::string_view bytes) {
  return std::ranges::copy(bytes, to).out;
}

std::uint32_t sizeOf(std::string_view bytes) {
  return static_cast<std::uint32_t>(bytes.size());
}

}  // namespace

inline bool SortedRows::before(const Entry& left, const Entry& right) {
  if (left.head != right.head) return left.head < right.head;
  return std::string_view(left.bytes, left.keySize) < std::string_view(right.bytes, right.keySize);
}

std::uint64_t SortedRows::headOf(std::string_view key) const {
  if (!key.starts_with(expected_)) return key < expected_ ? 0 : ~std::uint64_t{0};
  key.remove_prefix(expected_.size());
  std::uint64_t head = 0;
  std::memcpy(&head, key.data(), std::min(key.size(), sizeof head));
  if constexpr (std::endian::native == std::endian::little) head = __builtin_bswap64(head);
  return head;
}

char* SortedRows::room(std::size_t size) {
  if (size > left_ || blocks_.empty()) {  // a row may be empty
    blockSize_ = std::max(size, kBlock);
    left_ = blockSize_;
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(blockSize_));
  }
  char* start = blocks_.back().get() + (blockSize_ - left_);
  left_ -= size;
  return start;
}

void SortedRows::add(std::string_view key, std::string_view name, std::string_view extra) {
  char* bytes = room(key.size() + name.size() + extra.size());
  put(put(put(bytes, key), name), extra);
  open_.push_back({headOf(key), bytes, sizeOf(key), sizeOf(name), sizeOf(extra)});
}

void SortedRows::closeRun() {
  if (open_.empty()) return;
  std::ranges::sort(open_,
                    [](const Entry& left, const Entry& right) { return before(left, right); });
  total_ += open_.size();
  runs_.push_back(std::move(open_));
  open_ = {};
}

// The heap keeps the run with the lowest next entry on top.
void SortedRows::beginMerge() {
  merging_ = true;
  rows_.reserve(total_);
  for (const Run& run : runs_) heap_.push_back({run.data(), run.data() + run.size()});
  for (std::size_t parent = heap_.size() / 2; parent-- > 0;) sink(parent);
}

void SortedRows::sink(std::size_t parent) {
  const Head moved = heap_[parent];
  for (;;) {
    std::size_t child = 2 * parent + 1;
    if (child >= heap_.size()) break;
    if (child + 1 < heap_.size() && before(*heap_[child + 1].next, *heap_[child].next)) ++child;
    if (!before(*heap_[child].next, *moved.next)) break;
    heap_[parent] = heap_[child];
    parent = child;
  }
  heap_[parent] = moved;
}

void SortedRows::take() {
  Head& top = heap_.front();
  const Entry& entry = *top.next;
  const char* name = entry.bytes + entry.keySize;
  rows_.push_back({{name, entry.nameSize}, {name + entry.nameSize, entry.extraSize}});
  if (++top.next == top.end) {
    top = heap_.back();
    heap_.pop_back();
  }
  if (!heap_.empty()) sink(0);
}

bool SortedRows::merge(Deadline deadline) {
  if (!merging_) beginMerge();
  while (!heap_.empty()) {
    for (int row = 0; row < kRowsBetweenLooks && !heap_.empty(); ++row) take();
    if (std::chrono::steady_clock::now() >= deadline) break;
  }
  return heap_.empty();
}

}  // namespace dao
