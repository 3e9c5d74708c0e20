// What goes along when a card gets another name or is deleted: all tables that hold the patient by
// name. Nothing else ties them to the card.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/dao/attachment.h"
#include "stores/stores.h"

namespace stores {

// One transaction over the Personal store, where the caller writes the card's own row through its
// recordset, and the stores that the work reaches. Without commit() everything stays as it was;
// after a crash all files have changed or none. Names compare like keys; rows get the new name as
// it is given.
class PatientCascade {
 public:
  // What is done to the card: stored under its name, stored under another one, or deleted.
  enum class Work { Store, Rename, Delete };
  [[nodiscard]] static dao::Result<PatientCascade> begin(Stores& stores, Work work);

  // Carries the patient's clinical rows over to the new name, in all specialities. Rows that are
  // there under the new name already are the same patient's from then on. Appointments, accounts
  // and trials of the smoking clinic keep the old name.
  dao::Status rename(std::string_view old, std::string_view now);
  // Deletes the patient's clinical rows and the open trial of the smoking clinic. Reminders and the
  // warning stay.
  dao::Status digerkayitlarisil(std::string_view name);

  dao::Status commit();

 private:
  struct Change {
    std::string old;
    std::string now;
    bool sameKey;  // only the letters' case differs
  };
  explicit PatientCascade(const dao::Database& personal) : personal_(personal) {}
  dao::Status attach(Stores& stores, Work work);

  dao::Status İsimleriDeğiştir(const Change& change);
  dao::Status İsimdeğiştirmotor(const Change& change);
  dao::Status isimdegistirkardiyoloji(const Change& change);
  dao::Status İsimdeğiştirpatoloji(const Change& change);
  dao::Status vizitdegistir(const Change& change);
  dao::Status vizitSatırınıDeğiştir(const Change& keys);
  dao::Status uyarıyıDeğiştir(const Change& change);
  dao::Status vizitsil(std::string_view name);
  dao::Status smoksil(std::string_view name);

  dao::Status run(const std::string& statement, const std::vector<dao::Value>& parameters);
  dao::Status renameRows(std::string_view table, const Change& change);
  dao::Status renameKey(std::string_view table, std::string_view field, const Change& change);

  dao::Database personal_;
  // The transaction ends before the files are let go.
  std::optional<dao::Attachment> clinical_;
  std::optional<dao::Attachment> smoking_;
  std::optional<dao::Transaction> transaction_;
};

}  // namespace stores
