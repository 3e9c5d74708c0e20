#include "platform/dao/declaration.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/dao/catalogue.h"
#include "platform/text/fold.h"

namespace dao {
namespace {

// A text that refuses "" says so in its type, so that the file alone tells the rules of its fields.
constexpr std::string_view kNonEmpty = "NONEMPTY ";

struct Declared {
  FieldType type;
  std::string_view name;
};

// The names are chosen so that each gets the storage affinity that its values need.
constexpr std::array kDeclared{
    Declared{FieldType::Text, "TEXT"},      Declared{FieldType::Memo, "LONG TEXT"},
    Declared{FieldType::Long, "INTEGER"},   Declared{FieldType::Integer, "SMALLINT"},
    Declared{FieldType::Byte, "TINYINT"},   Declared{FieldType::Boolean, "BOOLEAN"},
    Declared{FieldType::Double, "DOUBLE"},  Declared{FieldType::Currency, "CURRENCY"},
    Declared{FieldType::Date, "DATE TEXT"},
};

constexpr std::string_view kPrimary = "PrimaryKey";

std::vector<std::string_view> split(std::string_view fields) {
  std::vector<std::string_view> names;
  while (!fields.empty()) {
    const std::size_t end = std::min(fields.find(';'), fields.size());
    names.push_back(fields.substr(0, end));
    fields.remove_prefix(std::min(end + 1, fields.size()));
  }
  return names;
}

std::string columnList(std::string_view fields) {
  std::string list;
  for (const std::string_view name : split(fields))
    list += (list.empty() ? "" : ", ") + sqlName(name);
  return list;
}

const FieldDef* fieldOf(const TableDef& table, std::string_view name) {
  const auto found = std::ranges::find_if(
      table.fields, [&](const FieldDef& field) { return text::equalsNoCase(field.name, name); });
  return found == table.fields.end() ? nullptr : &*found;
}

const IndexDef* primaryOf(const TableDef& table) {
  const auto found = std::ranges::find(table.indexes, Primary::Yes, &IndexDef::primary);
  return found == table.indexes.end() ? nullptr : &*found;
}

// The field that the file itself numbers its rows by, if there is one.
const FieldDef* numberingField(const TableDef& table) {
  const auto counted =
      std::ranges::find(table.fields, AutoIncrement::Yes, &FieldDef::autoIncrement);
  if (counted != table.fields.end()) return &*counted;
  const IndexDef* primary = primaryOf(table);
  const FieldDef* field = primary ? fieldOf(table, primary->fields) : nullptr;
  return field && field->type == FieldType::Long ? field : nullptr;
}

bool isKeyField(const TableDef& table, const FieldDef& field) {
  const IndexDef* primary = primaryOf(table);
  return primary && std::ranges::any_of(split(primary->fields), [&](auto name) {
           return text::equalsNoCase(name, field.name);
         });
}

std::string column(const TableDef& table, const FieldDef& field, Order order) {
  std::string text = sqlName(field.name) + " " + declaration(field);
  if (&field == numberingField(table)) {
    return text + (field.autoIncrement == AutoIncrement::Yes ? " PRIMARY KEY AUTOINCREMENT"
                                                             : " PRIMARY KEY");
  }
  if (isKeyField(table, field)) text += " NOT NULL";
  if (isText(field.type)) text.append(" COLLATE ").append(collationName(order));
  return text;
}

std::string indexCreation(std::string_view table, const IndexDef& index) {
  const bool unique = index.unique == Unique::Yes || index.primary == Primary::Yes;
  return std::string(unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") +
         sqlName(indexNameInFile(table, index.name)) + " ON " + sqlName(table) + "(" +
         columnList(index.fields) + ")";
}

Status wrong(const TableDef& table, const std::string& text) {
  return {Fault::Unsupported, "Table " + std::string(table.name) + ": " + text};
}

Status validate(const TableDef& table) {
  if (table.name.empty() || table.name.starts_with('~'))
    return wrong(table, "the name cannot be used.");
  for (const IndexDef& index : table.indexes) {
    if ((index.primary == Primary::Yes) != (index.name == kPrimary))
      return wrong(table, "the primary index is called PrimaryKey.");
    for (const std::string_view name : split(index.fields)) {
      if (!fieldOf(table, name))
        return wrong(table, "an index names no field: " + std::string(name));
    }
  }
  const auto counted =
      std::ranges::count(table.fields, AutoIncrement::Yes, &FieldDef::autoIncrement);
  return counted > 1 ? wrong(table, "only one field can count.") : Status();
}

}  // namespace

bool isText(FieldType type) {
  return type == FieldType::Text || type == FieldType::Memo;
}

std::string declaration(const FieldDef& field) {
  const auto declared = std::ranges::find(kDeclared, field.type, &Declared::type);
  std::string text(declared->name);
  if (isText(field.type) && field.zeroLength == ZeroLength::Refused) text.insert(0, kNonEmpty);
  const int size = field.size > 0 ? field.size : kDefaultTextSize;
  if (field.type == FieldType::Text) text += "(" + std::to_string(size) + ")";
  return text;
}

FieldInfo declaredField(std::string_view name, std::string_view text) {
  FieldInfo field{std::string(name)};
  if (text.starts_with(kNonEmpty)) {
    field.zeroLength = ZeroLength::Refused;
    text.remove_prefix(kNonEmpty.size());
  }
  const std::size_t open = std::min(text.find('('), text.size());
  const auto declared = std::ranges::find(kDeclared, text.substr(0, open), &Declared::name);
  if (declared != kDeclared.end()) field.type = declared->type;
  if (open < text.size())
    std::from_chars(text.data() + open + 1, text.data() + text.size(), field.size);
  return field;
}

Result<std::vector<std::string>> creation(const TableDef& table, Order order) {
  if (Status fault = validate(table); !fault) return std::unexpected(fault);
  const FieldDef* numbering = numberingField(table);
  const IndexDef* primary = primaryOf(table);
  std::string columns;
  for (const FieldDef& field : table.fields)
    columns += (columns.empty() ? "" : ", ") + column(table, field, order);
  const bool clustered = primary && !numbering && split(primary->fields).size() == 1;
  if (clustered) columns += ", PRIMARY KEY(" + columnList(primary->fields) + ")";
  std::vector<std::string> statements;
  statements.push_back("CREATE TABLE " + sqlName(table.name) + "(" + columns +
                       (clustered ? ") WITHOUT ROWID" : ")"));
  for (const IndexDef& index : table.indexes) {
    const bool numbered = numbering && text::equalsNoCase(index.fields, numbering->name);
    const bool inTable = index.primary == Primary::Yes && (clustered || numbered);
    if (!inTable) statements.push_back(indexCreation(table.name, index));
  }
  return statements;
}

std::string helperCreation(std::string_view table, const HelperDef& helper) {
  const std::string field = sqlName(helper.field);
  std::string columns = field;
  if (helper.kind != HelperIndex::Plain) {
    const bool turkish = helper.kind == HelperIndex::PrefixSearchTurkish;
    columns = std::string(turkish ? "fold_turkish(" : "fold_general(") + field + "), order_key(" +
              field + ")";
    if (!helper.extraField.empty()) columns += ", " + sqlName(helper.extraField);
  }
  return "CREATE INDEX IF NOT EXISTS " + sqlName(helperNameInFile(table, helper)) + " ON " +
         sqlName(table) + "(" + columns + ")";
}

}  // namespace dao
