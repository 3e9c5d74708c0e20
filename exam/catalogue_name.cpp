#include "exam/catalogue_name.h"

#include "platform/dao/prefix_search.h"
#include "platform/text/utf8.h"

namespace exam {

std::string foldedName(const shell::Station& istasyon, std::string_view name) {
  return dao::folded(text::trim(name), istasyon.turkce() ? dao::Fold::Turkish : dao::Fold::General);
}

std::optional<std::string> storedName(dao::Recordset& catalogue, std::string_view column,
                                      std::string_view name) {
  if (name.empty() || !catalogue.Seek("=", text::trim(name)) || catalogue.NoMatch())
    return std::nullopt;
  return catalogue.Fields(column).text();
}

}  // namespace exam
