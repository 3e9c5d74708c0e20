#include "registry/card_batches.h"

namespace registry {

namespace {

bool isOfTheStore(const dao::Status& status) {
  switch (status.fault()) {
    case dao::Fault::Busy:
    case dao::Fault::ReadOnly:
    case dao::Fault::DiskFull:
    case dao::Fault::Damaged:
    case dao::Fault::NoCurrent:
      return true;
    default:
      return false;
  }
}

}  // namespace

dao::Status CardBatches::write(std::span<const std::string> names) {
  const dao::Status all = together(names);
  if (all || isOfTheStore(all)) return all;
  for (const std::string& name : names) {
    const dao::Status one = together({&name, 1});
    if (one) continue;
    if (isOfTheStore(one)) return one;
    ++refused_;
  }
  return {};
}

dao::Status CardBatches::together(std::span<const std::string> names) {
  auto transaction = personal_.beginTransaction();
  if (!transaction) return transaction.error();
  for (const std::string& name : names) {
    const dao::Status one = writer_(name);
    if (!one) return one;
  }
  const dao::Status committed = transaction->commit();
  if (committed) written_ += static_cast<std::int64_t>(names.size());
  return committed;
}

}  // namespace registry
