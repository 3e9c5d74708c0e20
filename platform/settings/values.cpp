#include "platform/settings/values.h"

#include "platform/text/fold.h"

namespace settings {

std::size_t PlaceHash::operator()(const PlaceView& place) const {
  const std::size_t outer = text::hashNoCase(place.section, text::hashNoCase(place.application));
  return text::hashNoCase(place.key, outer);
}

bool PlaceEqual::operator()(const PlaceView& a, const PlaceView& b) const {
  return text::equalsNoCase(a.key, b.key) && text::equalsNoCase(a.section, b.section) &&
         text::equalsNoCase(a.application, b.application);
}

}  // namespace settings
