#include "stores/schema.h"

#include <algorithm>

#include "platform/text/fold.h"

namespace stores {

namespace {

template <class Row>
const Row* named(std::span<const Row> rows, std::string_view name) {
  const auto found = std::ranges::find_if(
      rows, [&](const Row& row) { return text::equalsNoCase(row.name, name); });
  return found == rows.end() ? nullptr : &*found;
}

}  // namespace

const dao::TableDef* tableOf(Schema schema, std::string_view table) {
  return named(schema, table);
}
const dao::FieldDef* fieldOf(const dao::TableDef& table, std::string_view field) {
  return named(table.fields, field);
}

}  // namespace stores
