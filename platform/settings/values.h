// Settings in memory: application, section and key, without regard to case, lead to a text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace settings {

// A place of a setting; finding one needs no copies of its names.
struct PlaceView {
  std::string_view application;
  std::string_view section;
  std::string_view key;
};

struct Place {
  std::string application;
  std::string section;
  std::string key;

  explicit Place(const PlaceView& view)
      : application(view.application), section(view.section), key(view.key) {}
  // Letter for letter, unlike finding.
  bool operator==(const Place&) const = default;
  [[nodiscard]] PlaceView view() const { return {application, section, key}; }
};

struct PlaceHash {
  using is_transparent = void;
  std::size_t operator()(const PlaceView& place) const;
  std::size_t operator()(const Place& place) const { return (*this)(place.view()); }
};

struct PlaceEqual {
  using is_transparent = void;
  bool operator()(const PlaceView& a, const PlaceView& b) const;
  bool operator()(const Place& a, const Place& b) const { return (*this)(a.view(), b.view()); }
  bool operator()(const Place& a, const PlaceView& b) const { return (*this)(a.view(), b); }
  bool operator()(const PlaceView& a, const Place& b) const { return (*this)(a, b.view()); }
};

using Values = std::unordered_map<Place, std::string, PlaceHash, PlaceEqual>;

}  // namespace settings
