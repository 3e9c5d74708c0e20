#include "registry/name_search.h"

#include <utility>

#include "platform/text/utf8.h"

namespace registry {

platform::Status NameSearch::start(const dao::Database& personal, std::string_view typed,
                                   dao::Fold fold, HiddenPatients hidden) {
  stop();
  found_.clear();
  taken_ = 0;
  hidden_ = hidden;
  if (typed.empty()) return {};
  auto reader = dao::PrefixReader::open(personal, "IDCard", "Name", fold, typed);
  if (!reader) return reader.error();
  reader_ = std::move(*reader);
  return {};
}

bool NameSearch::step() {
  if (!reader_) return true;
  const auto done = reader_->step();
  for (const dao::PrefixRow& row : reader_->rows().subspan(taken_)) {
    ++taken_;
    if (hidden_ == HiddenPatients::PassedOver && text::trimmed(row.extra) == hiddenMark) continue;
    found_.emplace_back(row.name);
  }
  if (done && !*done) return false;
  stop();
  return true;
}

std::vector<std::string> NameSearch::take() {
  return std::exchange(found_, {});
}

}  // namespace registry
