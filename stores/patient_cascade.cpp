#include "stores/patient_cascade.h"

#include "stores/smoking_store.h"

namespace stores {

namespace {

constexpr std::string_view clinicalAlias = "clinical";
constexpr std::string_view smokingAlias = "smoking";

std::string inClinical(std::string_view table) {
  return "[clinical].[" + std::string(table) + "]";
}

std::string inSmoking(std::string_view table) {
  return "[smoking].[" + std::string(table) + "]";
}

dao::Status attachTo(dao::Database& personal, const dao::Database& store, std::string_view alias,
                     std::optional<dao::Attachment>& attached) {
  auto attachment = dao::AttachDatabase(personal, store, alias);
  if (!attachment) return attachment.error();
  attached.emplace(std::move(*attachment));
  return {};
}

}  // namespace

dao::Result<PatientCascade> PatientCascade::begin(Stores& stores, Work work) {
  PatientCascade cascade(stores.personal.database);
  const dao::Status attached = cascade.attach(stores, work);
  if (!attached) return std::unexpected(attached);
  auto transaction = cascade.personal_.beginTransaction();
  if (!transaction) return std::unexpected(transaction.error());
  cascade.transaction_.emplace(std::move(*transaction));
  return cascade;
}

dao::Status PatientCascade::attach(Stores& stores, Work work) {
  if (work == Work::Store) return {};
  dao::Status attached = attachTo(personal_, stores.clinical.database, clinicalAlias, clinical_);
  if (!attached || work == Work::Rename || !hasSmokingStore(stores.folder)) return attached;
  const auto smoking = openSmokingFile(stores.folder);
  if (!smoking) return smoking.error();
  return attachTo(personal_, *smoking, smokingAlias, smoking_);
}

dao::Status PatientCascade::commit() {
  return transaction_->commit();
}

dao::Status PatientCascade::rename(std::string_view old, std::string_view now) {
  const Change change{std::string(old), std::string(now), personal_.sameKey(old, now)};
  dao::Status status = İsimleriDeğiştir(change);
  if (status) status = isimdegistirkardiyoloji(change);
  if (status) status = İsimdeğiştirpatoloji(change);
  return status ? vizitdegistir(change) : status;
}

dao::Status PatientCascade::İsimleriDeğiştir(const Change& change) {
  for (const char* table : {"Physical Exam", "Vaccine", "Persantil", "Analyze", "Operation",
                            "Gravid", "Gravid Control", "Lens", "tblRem"}) {
    if (dao::Status status = renameRows(table, change); !status) return status;
  }
  if (dao::Status status = uyarıyıDeğiştir(change); !status) return status;
  return İsimdeğiştirmotor(change);
}

// There is one row of motor development a patient: the renamed patient's own takes the place of one
// that was left under the new name.
dao::Status PatientCascade::İsimdeğiştirmotor(const Change& change) {
  return renameKey("Motor", "Name", change);
}

dao::Status PatientCascade::isimdegistirkardiyoloji(const Change& change) {
  for (const char* table : {"Angio", "Efor", "Echo"}) {
    if (dao::Status status = renameRows(table, change); !status) return status;
  }
  return {};
}

dao::Status PatientCascade::İsimdeğiştirpatoloji(const Change& change) {
  return renameRows("Pathology", change);
}

// One warning a patient: the text that was left under the new name is put behind the patient's own.
dao::Status PatientCascade::uyarıyıDeğiştir(const Change& change) {
  if (!change.sameKey) {
    const dao::Status merged =
        run("UPDATE [clinical].[tblWarn] AS own SET [warn] = "
            "left(coalesce(nullif(own.[warn], '') || '; ', '') || rest.[warn], 250) "
            "FROM [clinical].[tblWarn] AS rest "
            "WHERE own.[name] = ?1 AND rest.[name] = ?2 AND rest.[warn] <> ''",
            {change.old, change.now});
    if (!merged) return merged;
  }
  return renameKey("tblWarn", "name", change);
}

dao::Status PatientCascade::digerkayitlarisil(std::string_view name) {
  if (dao::Status status = vizitsil(name); !status) return status;
  for (const char* table :
       {"Physical Exam", "Analyze", "Operation", "Persantil", "Vaccine", "Motor", "Lens", "Angio",
        "Efor", "Echo", "Pathology", "Gravid", "Gravid Control"}) {
    const dao::Status status =
        run("DELETE FROM " + inClinical(table) + " WHERE [Name] = ?", {name});
    if (!status) return status;
  }
  return smoksil(name);
}

// A closed trial carries the name with a suffix and stays.
dao::Status PatientCascade::smoksil(std::string_view name) {
  if (!smoking_) return {};
  auto trial = personal_.OpenRecordset(
      "SELECT [sm_num] FROM [smoking].[Smoke] WHERE [name] = ? ORDER BY [sm_num] LIMIT 1", {name});
  if (!trial) return trial.error();
  if (trial->empty()) return {};
  const dao::Value number = trial->Fields("sm_num").Value();
  for (const char* table : {"Smoke_Control", "Resuld", "prescription", "sec", "Smoke"}) {
    const dao::Status status =
        run("DELETE FROM " + inSmoking(table) + " WHERE [sm_num] = ?", {number});
    if (!status) return status;
  }
  return {};
}

dao::Status PatientCascade::run(const std::string& statement,
                                const std::vector<dao::Value>& parameters) {
  const auto done = personal_.Execute(statement, parameters);
  return done ? dao::Status() : done.error();
}

dao::Status PatientCascade::renameRows(std::string_view table, const Change& change) {
  return run("UPDATE " + inClinical(table) + " SET [Name] = ?2 WHERE [Name] = ?1",
             {change.old, change.now});
}

// Where the name is the key, a row that was left under the new one makes room.
dao::Status PatientCascade::renameKey(std::string_view table, std::string_view field,
                                      const Change& change) {
  const std::string rows = inClinical(table);
  const std::string key = "[" + std::string(field) + "]";
  if (!change.sameKey) {
    const dao::Status removed =
        run("DELETE FROM " + rows + " WHERE " + key + " = ?2 AND EXISTS(SELECT 1 FROM " + rows +
                " WHERE " + key + " = ?1)",
            {change.old, change.now});
    if (!removed) return removed;
  }
  return run("UPDATE " + rows + " SET " + key + " = ?2 WHERE " + key + " = ?1",
             {change.old, change.now});
}

}  // namespace stores
