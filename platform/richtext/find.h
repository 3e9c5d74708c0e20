// Search in the plain text of a document.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/richtext/document.h"

namespace richtext {

enum class FindCase { Ignore, Match };
enum class FindWord { Part, Whole };

struct FindOptions {
  FindCase letters = FindCase::Ignore;
  FindWord word = FindWord::Part;
};

// The range of the first match that starts at or after `from`. Ignoring case, the four letters i,
// I, dotted I and dotless i count as one, because people search Turkish and foreign words alike.
// Whole means that neither neighbour is a letter, a digit or an underscore. An empty text is never
// found.
std::optional<Range> findText(const Document& document, std::string_view what, std::size_t from,
                              FindOptions options);

}  // namespace richtext
