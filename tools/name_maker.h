// Names for a whole practice, no two alike.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tools/random.h"
#include "tools/word_lists.h"

namespace tools {

struct NamedPerson {
  std::string name;
  Sex sex = Sex::Female;
  std::size_t number = 0;  // counts from 1, in the order in which the patients first came
};

// In the order of the names' bytes, which is nearly that of the store: it fills quickest so.
// Namesakes carry the marks that the card gives them: "Ayşe Kaya", "Ayşe Kaya*", "Ayşe Kaya**".
[[nodiscard]] std::vector<NamedPerson> makeNames(Random& random, std::size_t count);

[[nodiscard]] std::string makeGivenName(Random& random, Sex sex);

}  // namespace tools
