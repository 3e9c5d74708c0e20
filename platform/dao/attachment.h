// Several store files in one transaction.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/dao/database.h"

namespace dao {

// Holds the tables of another store within reach of a database; see AttachDatabase.
class Attachment {
 public:
  Attachment(Attachment&& other) noexcept = default;
  Attachment& operator=(Attachment&&) = delete;
  ~Attachment();

 private:
  friend Result<Attachment> AttachDatabase(Database& to, const Database& other,
                                           std::string_view alias);
  Attachment(std::shared_ptr<Engine> engine, std::string_view alias)
      : engine_(std::move(engine)), alias_(alias) {}

  std::shared_ptr<Engine> engine_;
  std::string alias_;
};

// Until the attachment is destroyed, Execute and the selects of `to` reach the tables of `other` as
// [alias].[Table Name], and a transaction of `to` is one of both files: after a crash both have
// changed or neither. It is taken before that transaction begins and outlives it. Texts compare in
// the order of the store that they stand in; like, left and the other functions keep the order of
// `to`. Work that locks several stores attaches them in one order everywhere, lest two stations
// wait for each other. NoCurrent (a store that is closed), Missing (the file is gone), Unsupported
// (inside a transaction, or a file of another program), ReadOnly, Busy, Damaged.
[[nodiscard]] Result<Attachment> AttachDatabase(Database& to, const Database& other,
                                                std::string_view alias);

}  // namespace dao
