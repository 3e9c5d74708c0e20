// Stored text is shown as it stands.
#pragma once

namespace desktop {

// From now on no label, box or tool tip of the program takes a text for markup, which could name
// files to be read; one that is meant to says so by its text format. Called once.
void showWordsPlain();

}  // namespace desktop
