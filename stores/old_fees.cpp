#include "stores/old_fees.h"

#include <array>
#include <limits>

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

class ColumnConversion {
 public:
  ColumnConversion(dao::Database& clinical, const AmountColumn& at)
      : clinical_(clinical),
        column_(bracketed(at.column)),
        table_(bracketed(at.table)),
        select_("SELECT [Count], " + column_ + " FROM " + table_ + " WHERE [Count] > ? AND " +
                column_ + " <> '' ORDER BY [Count] LIMIT ?"),
        update_("UPDATE " + table_ + " SET " + column_ + " = ? WHERE [Count] = ?") {}

  dao::Result<std::int64_t> run() {
    std::int64_t last = std::numeric_limits<std::int64_t>::min();
    for (;;) {
      auto rows = clinical_.OpenRecordset(select_, {last, rowsAtOnce});
      if (!rows) return std::unexpected(rows.error());
      if (rows->empty()) return changed_;
      for (; !rows->Eof(); rows->MoveNext().ignore()) {
        last = rows->Fields(0).Value().integer();
        if (dao::Status done = convert(last, rows->Fields(1).view()); !done)
          return std::unexpected(done);
      }
    }
  }

 private:
  dao::Status convert(std::int64_t number, std::string_view amount) {
    if (!isOldAmount(amount)) return {};
    const auto changed = clinical_.Execute(update_, {newAmount(amount), number});
    if (!changed) return changed.error();
    ++changed_;
    return {};
  }

  dao::Database& clinical_;
  std::string column_;
  std::string table_;
  std::string select_;
  std::string update_;
  std::int64_t changed_ = 0;
};

}  // namespace

bool isOldAmount(std::string_view text) {
  const auto amount = text::number(text);
  return amount && *amount > highestNewAmount;
}

std::string newAmount(std::string_view old) {
  return text::amount(text::number(old).value_or(0) / oldLiraPerNew);
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
