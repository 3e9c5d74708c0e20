// The look of all windows: style, palette and fonts.
#pragma once

#include <QString>

namespace desktop {

enum class Shade { Light, Dark };

// Dark when SANAVEL_PALETTE says "dark", light when it says "light", else as the desk's own palette
// is.
[[nodiscard]] Shade wantedShade();
void applyAppearance(Shade shade);

// Empty when the installed fonts can draw Turkish; else what is wrong.
[[nodiscard]] QString fontProblem();

}  // namespace desktop
