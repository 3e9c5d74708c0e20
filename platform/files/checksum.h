// A checksum that finds damage and tells texts apart; no guard against malice.
#pragma once

#include <cstdint>
#include <string_view>

namespace files {

inline constexpr std::uint64_t noBytes = 0xCBF29CE484222325U;

// The checksum of what was read so far and the bytes behind it (FNV-1a of 64 bits).
constexpr std::uint64_t checksum(std::string_view bytes, std::uint64_t soFar = noBytes) {
  for (const char byte : bytes) soFar = (soFar ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  return soFar;
}

}  // namespace files
