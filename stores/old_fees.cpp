#include "stores/old_fees.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "platform/text/number.h"

namespace stores {

namespace {

constexpr double highestNewAmount = 10'000;
constexpr double oldLiraPerNew = 1'000'000;
constexpr std::int64_t rowsAtOnce = 4096;

struct AmountColumn {
  std::string_view table;
  std::string_view column;
};

// In the order in which they have always been converted.
constexpr std::array<AmountColumn, 12> amountColumns{{{"Physical Exam", "Fee"},
                                                      {"Operation", "Fee"},
                                                      {"Gravid Control", "Fee"},
                                                      {"Lens", "Fee"},
                                                      {"Echo", "Fee"},
                                                      {"Angio", "Fee"},
                                                      {"Efor", "Fee"},
                                                      {"Pathology", "Fee"},
                                                      {"Lens Stock", "Cost price"},
                                                      {"Lens Stock", "Price"},
                                                      {"Lens", "Cost price"},
                                                      {"Lens", "Price"}}};

std::string bracketed(std::string_view name) {
  return "[" + std::string(name) + "]";
}

// The old amounts of a column in the order of their rows.
class AmountReader {
 public:
  AmountReader(dao::Database& clinical, const AmountColumn& at)
      : clinical_(clinical),
        select_("SELECT [Count], " + bracketed(at.column) + " FROM " + bracketed(at.table) +
                " WHERE [Count] > ? AND " + bracketed(at.column) +
                " <> '' ORDER BY [Count] LIMIT ?") {}

  // Calls with the old ones among the next rows; false at the end.
  template <class Visit>
  dao::Result<bool> readPage(const Visit& visit) {
    auto rows = clinical_.OpenRecordset(select_, {last_, rowsAtOnce});
    if (!rows) return std::unexpected(rows.error());
    if (rows->empty()) return false;
    for (; !rows->Eof(); rows->MoveNext().ignore()) {
      last_ = rows->Fields(0).Value().integer();
      const std::string_view amount = rows->Fields(1).view();
      if (isOldAmount(amount)) visit(last_, amount);
    }
    return true;
  }

 private:
  dao::Database& clinical_;
  std::string select_;
  std::int64_t last_ = std::numeric_limits<std::int64_t>::min();
};

class ColumnConversion {
 public:
  ColumnConversion(dao::Database& clinical, const AmountColumn& at)
      : clinical_(clinical),
        reader_(clinical, at),
        update_("UPDATE " + bracketed(at.table) + " SET " + bracketed(at.column) +
                " = j.value FROM json_each(?) AS j WHERE [Count] = CAST(j.key AS INTEGER)") {}

  dao::Result<std::int64_t> run() {
    for (;;) {
      const auto more = reader_.readPage(
          [this](std::int64_t number, std::string_view amount) { gather(number, amount); });
      if (!more) return std::unexpected(more.error());
      if (!*more) return changed_;
      if (dao::Status done = writeGathered(); !done) return std::unexpected(done);
    }
  }

 private:
  void gather(std::int64_t number, std::string_view amount) {
    gathered_.append(gathered_.empty() ? "{\"" : ",\"").append(std::to_string(number));
    gathered_.append("\":\"").append(newAmount(amount)).append("\"");
  }

  dao::Status writeGathered() {
    if (gathered_.empty()) return {};
    const auto changed = clinical_.Execute(update_, {std::exchange(gathered_, {}) + "}"});
    if (!changed) return changed.error();
    changed_ += *changed;
    return {};
  }

  dao::Database& clinical_;
  AmountReader reader_;
  std::string update_;
  std::string gathered_;  // new amounts by the number of their row, as the engine's object
  std::int64_t changed_ = 0;
};

void note(OldAmounts& found, std::string_view table, std::string_view amount) {
  const auto row = std::ranges::find(found.tables, table, &OldAmounts::Table::name);
  if (row == found.tables.end()) {
    found.tables.push_back({table, 1});
  } else {
    ++row->amounts;
  }
  const auto value = text::number(amount);
  if (found.amounts == 0 || value > text::number(found.largest)) found.largest = amount;
  if (found.amounts == 0 || value < text::number(found.smallest)) found.smallest = amount;
  ++found.amounts;
  if (amount.find('.') != amount.npos) ++found.pointed;
}

}  // namespace

bool isOldAmount(std::string_view text) {
  const auto amount = text::number(text);
  return amount && *amount > highestNewAmount;
}

std::string newAmount(std::string_view old) {
  return text::amount(text::number(old).value_or(0) / oldLiraPerNew);
}

dao::Result<OldAmounts> findOldAmounts(ClinicalStore& clinical) {
  OldAmounts found;
  for (const AmountColumn& at : amountColumns) {
    AmountReader reader(clinical.database, at);
    for (dao::Result<bool> more = true; more != false;) {
      more = reader.readPage(
          [&](std::int64_t, std::string_view amount) { note(found, at.table, amount); });
      if (!more) return std::unexpected(more.error());
    }
  }
  return found;
}

dao::Result<std::int64_t> ConvertOldFees(ClinicalStore& clinical) {
  auto transaction = clinical.database.beginTransaction();
  if (!transaction) return std::unexpected(transaction.error());
  std::int64_t changed = 0;
  for (const AmountColumn& at : amountColumns) {
    const auto converted = ColumnConversion(clinical.database, at).run();
    if (!converted) return converted;
    changed += *converted;
  }
  const dao::Status committed = transaction->commit();
  if (!committed) return std::unexpected(committed);
  return changed;
}

}  // namespace stores
