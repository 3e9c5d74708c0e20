// The words that the toolkit brings itself (file, font and colour dialogs, context menus, months
// and days, keys) in the user's language, whatever the process was started in.
#pragma once

namespace desktop {

enum class Tongue { Turkish, English };

// What is opened from now on speaks that language, and open windows write their dates in it.
// Without an installed catalogue the toolkit's words are English.
void speak(Tongue tongue);

}  // namespace desktop
