#include "stores/value_list.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/text/fold.h"

namespace stores {

namespace {

constexpr std::array<std::pair<std::string_view, dao::Recordset PersonalStore::*>, 7> lists{{
    {"Place Of Birth", &PersonalStore::PlaceOfBirth},
    {"Profession", &PersonalStore::Profession},
    {"Company", &PersonalStore::Company},
    {"Job", &PersonalStore::Job},
    {"Relationship", &PersonalStore::Relationship},
    {"Adressing", &PersonalStore::Adressing},
    {"Referance", &PersonalStore::Referance},
}};

dao::Status noSuchList(std::string_view table) {
  return {dao::Fault::Missing, std::string(table) + " is no value list"};
}

dao::Status noSuchValue(std::string_view table, std::string_view value) {
  return {dao::Fault::Missing,
          std::string(table) + " does not hold \"" + std::string(value) + "\""};
}

// Seeks the value; a fault, or Missing when the list does not hold it.
dao::Status seekValue(dao::Recordset& list, std::string_view table, std::string_view value) {
  const dao::Status sought = list.Seek("=", value);
  if (!sought) return sought;
  return list.NoMatch() ? noSuchValue(table, value) : dao::Status();
}

dao::Status write(dao::Recordset& list, std::string_view table, std::string_view value) {
  const dao::Status set = list.Fields(table).Set(value);
  if (set) return list.Update();
  list.CancelUpdate();
  return set;
}

}  // namespace

dao::Recordset* valueList(PersonalStore& personal, std::string_view table) {
  const auto found = std::ranges::find_if(
      lists, [&](const auto& row) { return text::equalsNoCase(row.first, table); });
  return found == lists.end() ? nullptr : &(personal.*found->second);
}

std::vector<std::string> values(PersonalStore& personal, std::string_view table) {
  std::vector<std::string> all;
  dao::Recordset* const list = valueList(personal, table);
  if (list == nullptr || list->empty()) return all;
  for (dao::Status moved = list->MoveFirst(); moved && !list->Eof(); moved = list->MoveNext()) {
    all.push_back(list->Fields(table).text());
  }
  return all;
}

dao::Status addValue(PersonalStore& personal, std::string_view table, std::string_view value) {
  dao::Recordset* const list = valueList(personal, table);
  if (list == nullptr) return noSuchList(table);
  const dao::Status there = seekValue(*list, table, value);
  if (there.fault() != dao::Fault::Missing) return there;
  const dao::Status added = list->AddNew();
  return added ? write(*list, table, value) : added;
}

dao::Status changeValue(PersonalStore& personal, std::string_view table, std::string_view old,
                        std::string_view now) {
  dao::Recordset* const list = valueList(personal, table);
  if (list == nullptr) return noSuchList(table);
  const dao::Status there = seekValue(*list, table, old);
  if (!there) return there;
  const dao::Status editing = list->Edit();
  return editing ? write(*list, table, now) : editing;
}

dao::Status deleteValue(PersonalStore& personal, std::string_view table, std::string_view value) {
  dao::Recordset* const list = valueList(personal, table);
  if (list == nullptr) return noSuchList(table);
  const dao::Status there = seekValue(*list, table, value);
  return there ? list->Delete() : there;
}

}  // namespace stores
