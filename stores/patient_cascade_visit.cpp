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

// The key of the row `own` under the name ?2.
const std::string newKey = "left(own.[spname], instr(own.[spname], '\\')) || ?2";

const std::string mergeLeftovers =
    "UPDATE [clinical].[Visit] AS own SET "
    "[Visit Numbers] = coalesce(own.[Visit Numbers], '') || coalesce(rest.[Visit Numbers], ''), "
    "[Visit Count] = coalesce(own.[Visit Count], 0) + coalesce(rest.[Visit Count], 0), "
    "[Last Visit Date] = max(coalesce(own.[Last Visit Date], rest.[Last Visit Date]), "
    "coalesce(rest.[Last Visit Date], own.[Last Visit Date])) "
    "FROM [clinical].[Visit] AS rest WHERE own.[spname] IN " +
    patientKeys + " AND rest.[spname] = " + newKey;

const std::string removeLeftovers =
    "DELETE FROM [clinical].[Visit] WHERE [spname] IN (SELECT " + newKey +
    " FROM [clinical].[Visit] AS own WHERE own.[spname] IN " + patientKeys + ")";

const std::string moveRows = "UPDATE [clinical].[Visit] AS own SET [spname] = " + newKey +
                             " WHERE own.[spname] IN " + patientKeys;

}  // namespace

dao::Status PatientCascade::vizitdegistir(const Change& change) {
  const std::vector<dao::Value> names{change.old, change.now};
  if (change.sameKey) return run(moveRows, names);
  dao::Status status = run(mergeLeftovers, names);
  if (status) status = run(removeLeftovers, names);
  return status ? run(moveRows, names) : status;
}

dao::Status PatientCascade::vizitsil(std::string_view name) {
  return run("DELETE FROM [clinical].[Visit] WHERE [spname] IN " + patientKeys, {name});
}

}  // namespace stores
