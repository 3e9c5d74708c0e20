// Colours as 0xRRGGBB; no colour means the window's own.
#pragma once

#include <cstdint>
#include <optional>

namespace forms {

using Colour = std::uint32_t;
using OptionalColour = std::optional<Colour>;

// The stores and rules write colours with blue in the high byte.
[[nodiscard]] constexpr Colour fromBgr(std::uint32_t bgr) {
  return ((bgr & 0xFFU) << 16U) | (bgr & 0xFF00U) | ((bgr >> 16U) & 0xFFU);
}
[[nodiscard]] constexpr std::uint32_t toBgr(Colour rgb) {
  return fromBgr(rgb);
}

}  // namespace forms
