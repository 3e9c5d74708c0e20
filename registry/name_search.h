// The list of names under the name field: all patients whose name begins with what was typed.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/prefix_search.h"

namespace registry {

enum class HiddenPatients { PassedOver, Shown };

// Finds in slices, so that a window stays awake however many names there are.
class NameSearch {
 public:
  // Begins anew; what was found before is forgotten. An empty text finds nothing.
  platform::Status start(const dao::Database& personal, std::string_view typed, dao::Fold fold,
                         HiddenPatients hidden);
  void stop() { reader_.reset(); }
  [[nodiscard]] bool running() const { return reader_.has_value(); }

  // Works for one slice; true when the list is complete or the search failed.
  bool step();
  // The names found since the last call, in the order of the table.
  [[nodiscard]] std::vector<std::string> take();

 private:
  std::optional<dao::PrefixReader> reader_;
  std::size_t taken_ = 0;
  HiddenPatients hidden_ = HiddenPatients::PassedOver;
  std::vector<std::string> found_;
};

// What tells namesakes apart behind their names: the year of birth and the file number.
class NamesakeNotes {
 public:
  // Of the card of that name; empty where no other card that may be seen has the same name but for
  // its marks. Looked up once until it is forgotten.
  const std::string& of(dao::Database& personal, const std::string& name, HiddenPatients hidden);
  void forget() { known_.clear(); }

 private:
  std::map<std::string, std::string> known_;
};

// The mark in `IDCard.Key` that hides a patient.
inline constexpr std::string_view hiddenMark = "¬";

}  // namespace registry
