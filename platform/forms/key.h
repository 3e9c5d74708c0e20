// Keys as the screens' rules number them.
#pragma once

namespace forms {

namespace key_code {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F1 = 112;
}  // namespace key_code

// Letters and digits carry the code of their capital ('A' is 65); a character beyond ASCII carries
// 255.
struct Key {
  int code = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
};

}  // namespace forms
