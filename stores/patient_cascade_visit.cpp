// The rows of the visit ledger, whose keys end with the patient's name behind the first "\".
#include "stores/patient_cascade.h"

namespace stores {

namespace {

// The possible keys of patient ?1: one for every word in front of a "\" that the ledger has. Its
// order keeps the rows of a word together, so each word costs one search, as nothing but U+FFFF
// comes behind all names. That is as quick as an index by patient, and no save pays for it.
const std::string patientKeys =
    "(WITH RECURSIVE word(key) AS (SELECT '' UNION ALL "
    "SELECT (SELECT [spname] FROM [clinical].[Visit] WHERE [spname] > "
    "CASE instr(key, '\\') WHEN 0 THEN key ELSE left(key, instr(key, '\\')) || char(65535) END "
    "ORDER BY [spname] LIMIT 1) FROM word WHERE key IS NOT NULL) "
    "SELECT left(key, instr(key, '\\')) || ?1 FROM word WHERE instr(key, '\\') > 0)";

constexpr auto mergeLeftover =
    "UPDATE [clinical].[Visit] AS own SET "
    "[Visit Numbers] = coalesce(own.[Visit Numbers], '') || coalesce(rest.[Visit Numbers], ''), "
    "[Visit Count] = coalesce(own.[Visit Count], 0) + coalesce(rest.[Visit Count], 0), "
    "[Last Visit Date] = max(coalesce(own.[Last Visit Date], rest.[Last Visit Date]), "
    "coalesce(rest.[Last Visit Date], own.[Last Visit Date])) "
    "FROM [clinical].[Visit] AS rest WHERE own.[spname] = ?1 AND rest.[spname] = ?2";

}  // namespace

dao::Status PatientCascade::vizitdegistir(const Change& change) {
  auto rows = personal_.OpenRecordset(
      "SELECT [spname] FROM [clinical].[Visit] WHERE [spname] IN " + patientKeys, {change.old});
  if (!rows) return rows.error();
  dao::Status status;
  for (; status && !rows->Eof(); rows->MoveNext().ignore()) {
    const std::string key = rows->Fields("spname").text();
    const std::string word = key.substr(0, key.find('\\') + 1);
    status = vizitSatırınıDeğiştir({key, word + change.now, change.sameKey});
  }
  return status;
}

// Numbers that were left under the new name come behind the patient's own: whoever lists them sorts
// them by day.
dao::Status PatientCascade::vizitSatırınıDeğiştir(const Change& keys) {
  if (!keys.sameKey) {
    const dao::Status merged = run(mergeLeftover, {keys.old, keys.now});
    if (!merged) return merged;
  }
  return renameKey("Visit", "spname", keys);
}

dao::Status PatientCascade::vizitsil(std::string_view name) {
  return run("DELETE FROM [clinical].[Visit] WHERE [spname] IN " + patientKeys, {name});
}

}  // namespace stores
