#include "platform/settings/settings.h"

#include <limits>
#include <string>

#include "platform/text/number.h"

namespace settings {
namespace {

using platform::Fault;
using platform::Result;
using platform::Status;

long sumWithinLimits(long a, long b) {
  long sum = 0;
  if (!__builtin_add_overflow(a, b, &sum)) return sum;
  return b > 0 ? std::numeric_limits<long>::max() : std::numeric_limits<long>::min();
}

Edit assign(Values& values, const PlaceView& place, std::string_view value) {
  const auto found = values.find(place);
  if (found == values.end()) {
    values.emplace(Place{place}, value);
    return Edit::Changed;
  }
  if (found->second == value) return Edit::Same;
  found->second = value;
  return Edit::Changed;
}

}  // namespace

Status Settings::refresh() {
  if (!backend_->isChanged()) return {};
  Status told;
  auto values = backend_->load();
  if (!values && values.error().fault() == Fault::Damaged) {
    told = values.error();
    values = backend_->load();
  }
  if (!values) return values.error();
  values_ = std::move(*values);
  return told;
}

bool Settings::isLost(std::string_view application, std::string_view section,
                      std::string_view key) const {
  const PlaceView place{application, section, key};
  return !values_.contains(place) && backend_->isGuarded(place);
}

std::string_view Settings::get(std::string_view application, std::string_view section,
                               std::string_view key, std::string_view missing) const {
  const auto found = values_.find(PlaceView{application, section, key});
  return found == values_.end() ? missing : std::string_view{found->second};
}

Status Settings::set(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) {
  return apply([&](Values& values) { return assign(values, {application, section, key}, value); });
}

Status Settings::remove(std::string_view application, std::string_view section,
                        std::string_view key) {
  // Said beforehand: the names may be texts that get() answered, which end with the change.
  Status missing{Fault::Missing, "no setting " + std::string{key}};
  bool found = false;
  Status status = apply([&](Values& values) {
    const auto place = values.find(PlaceView{application, section, key});
    found = place != values.end();
    if (!found) return Edit::Same;
    values.erase(place);
    return Edit::Changed;
  });
  return status && !found ? missing : status;
}

Result<long> Settings::add(std::string_view application, std::string_view section,
                           std::string_view key, long delta) {
  long sum = 0;
  const Status status = apply([&](Values& values) {
    const PlaceView place{application, section, key};
    const auto found = values.find(place);
    const long before = found == values.end() ? 0 : text::wholeNumber(found->second).value_or(0);
    sum = sumWithinLimits(before, delta);
    return assign(values, place, std::to_string(sum));
  });
  if (!status && status.fault() != Fault::Damaged) return std::unexpected(status);
  return sum;
}

Status Settings::apply(const Change& change) {
  Status told;
  auto values = backend_->update(change);
  if (!values && values.error().fault() == Fault::Damaged) {
    told = values.error();
    values = backend_->update(change);
  }
  if (!values) return values.error();
  values_ = std::move(*values);
  return told;
}

}  // namespace settings
