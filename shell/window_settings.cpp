#include "shell/window_settings.h"

#include "platform/text/number.h"

namespace shell {

namespace {

constexpr long largestSide = 20000;
constexpr auto maximised = "2";
constexpr auto normal = "0";

std::string keyOf(std::string_view name, std::string_view what) {
  return std::string(name) + " " + std::string(what);
}

void readSide(Station& istasyon, std::string_view section, const std::string& key, int& side) {
  const auto kept = text::wholeNumber(istasyon.settings.get(applicationName, section, key));
  if (kept && *kept > 0 && *kept < largestSide) side = static_cast<int>(*kept);
}

}  // namespace

void pencereOku(Station& istasyon, forms::Form& form, std::string_view section,
                std::string_view name, forms::WindowState missing) {
  readSide(istasyon, section, keyOf(name, "Width"), form.width);
  readSide(istasyon, section, keyOf(name, "Height"), form.height);
  const std::string_view state =
      istasyon.settings.get(applicationName, section, keyOf(name, "WindowState"));
  form.windowState = state.empty()        ? missing
                     : state == maximised ? forms::WindowState::Maximised
                                          : forms::WindowState::Normal;
}

platform::Status pencereYaz(Station& istasyon, const forms::Form& form, std::string_view section,
                            std::string_view name) {
  if (form.windowState == forms::WindowState::Minimised) return {};
  const bool whole = form.windowState == forms::WindowState::Maximised;
  const auto keep = [&](std::string_view what, std::string_view value) {
    return istasyon.settings.set(applicationName, section, keyOf(name, what), value);
  };
  platform::Status kept = keep("WindowState", whole ? maximised : normal);
  if (!whole && kept) kept = keep("Width", std::to_string(form.width));
  if (!whole && kept) kept = keep("Height", std::to_string(form.height));
  return kept;
}

}  // namespace shell
