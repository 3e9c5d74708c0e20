// Definitions of tables, fields and indexes. They only view their names: schemas are constexpr
// tables.
#pragma once

#include <span>
#include <string_view>

namespace dao {

// The collating order of a store. Both ignore case and trailing blanks; in General I = i and both
// differ from the dotted capital and the dotless small one, in Turkish the dotted pair and the
// dotless pair are equal.
enum class Order { General, Turkish };

enum class FieldType { Text, Memo, Long, Integer, Byte, Boolean, Double, Currency, Date };
enum class ZeroLength { Refused, Allowed };
enum class AutoIncrement { No, Yes };

struct FieldDef {
  std::string_view name;
  FieldType type = FieldType::Text;
  int size = 0;  // Text only, in characters; 0 is 255
  ZeroLength zeroLength = ZeroLength::Refused;
  AutoIncrement autoIncrement = AutoIncrement::No;  // Long only, at most one in a table
};

enum class Primary { No, Yes };
enum class Unique { No, Yes };

// `fields` is one field name, or several separated by ';'. The primary index is called
// "PrimaryKey".
struct IndexDef {
  std::string_view name;
  std::string_view fields;
  Primary primary = Primary::No;
  Unique unique = Unique::No;
};

// Indexes of our own, which no rule and no catalogue shows.
enum class HelperIndex {
  Plain,                // the field, in the store's order
  PrefixSearchGeneral,  // PrefixReader with Fold::General
  PrefixSearchTurkish   // PrefixReader with Fold::Turkish
};

struct HelperDef {
  HelperIndex kind = HelperIndex::Plain;
  std::string_view field;
  std::string_view extraField = {};  // read along with the name by the prefix search
};

struct TableDef {
  std::string_view name;
  std::span<const FieldDef> fields;
  std::span<const IndexDef> indexes = {};
  std::span<const HelperDef> helpers = {};
};

}  // namespace dao
