#include "shell/file_words.h"

#include "platform/text/number.h"

namespace shell {

std::string boyut(std::uintmax_t bytes) {
  constexpr double unit = 1024.0;
  const double kilobytes = static_cast<double>(bytes) / unit;
  if (kilobytes < unit) return text::format(kilobytes, "0.0") + " KB";
  return text::format(kilobytes / unit, "0.0") + " MB";
}

std::string tarihSaat(const stores::FileState& state) {
  return text::shortDateTime(host::localTime(state.written));
}

std::string dosyaDamgasi(const text::DateTime& time) {
  std::string stamp = text::isoText(time);
  for (char& character : stamp) {
    if (character == ' ' || character == ':') character = '-';
  }
  return stamp;
}

std::string doldurulmus(Station& istasyon, Phrase which,
                        std::initializer_list<std::string_view> values) {
  std::string filled = phrase(istasyon, which);
  int number = 0;
  for (const std::string_view value : values) {
    const std::string mark = "%" + std::to_string(++number);
    if (const auto at = filled.find(mark); at != filled.npos)
      filled.replace(at, mark.size(), value);
  }
  return filled;
}

}  // namespace shell
