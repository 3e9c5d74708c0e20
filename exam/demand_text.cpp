#include "exam/demand_text.h"

namespace exam {

std::string istemeEklenmis(std::string_view request, std::string_view test) {
  std::string text(request);
  if (!text.empty()) text += ", ";
  return text.append(test);
}

// Copied character by character, so that what a dropped piece leaves behind counts again.
std::string aktarilan(std::string_view text) {
  std::string copy;
  for (const char each : text) {
    copy += each;
    for (const std::string_view end : {"\r\n  ", "\n  "}) {
      if (copy.ends_with(end)) copy.resize(copy.size() - end.size());
    }
  }
  return copy;
}

}  // namespace exam
