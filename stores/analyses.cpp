#include "stores/analyses.h"

#include <algorithm>

#include "platform/text/utf8.h"
#include "stores/visit_ledger.h"

namespace stores {

namespace {

constexpr std::string_view columns = "[Count], [Date], [Test], [result], [Unit], [Min], [Max]";

std::string trimmedField(dao::Recordset& rows, int column) {
  return std::string(text::trimmed(rows.Fields(column).view()));
}

Analysis currentOf(dao::Recordset& rows) {
  Analysis analysis;
  analysis.number = rows.Fields(0).Value().integer();
  analysis.date = rows.Fields(1).Value().date();
  int column = 2;
  for (std::string* const field :
       {&analysis.test, &analysis.result, &analysis.unit, &analysis.min, &analysis.max})
    *field = trimmedField(rows, column++);
  return analysis;
}

}  // namespace

dao::Result<std::vector<Analysis>> listedAnalyses(dao::Database& clinical,
                                                  std::span<const std::int64_t> numbers) {
  auto rows = openListed(clinical, kind::laboratory, columns, numbers);
  if (!rows) return std::unexpected(rows.error());
  std::vector<Analysis> found;
  for (; !rows->Eof(); rows->MoveNext().ignore()) found.push_back(currentOf(*rows));
  std::vector<Analysis> listed = arrived(numbers, found);
  std::ranges::stable_sort(listed, {}, &Analysis::date);
  return listed;
}

}  // namespace stores
