#include "shell/doctors.h"

#include "platform/text/utf8.h"

namespace shell {

void doktorlariYaz(Station& istasyon, forms::ComboBox& doctors) {
  dao::Recordset& table = istasyon.stores.clinical.Doctors;
  std::vector<std::string> names;
  bool found = table.MoveFirst().ok();
  for (; found && !table.Eof(); found = table.MoveNext().ok())
    names.push_back(table.Fields("Doctor").text());
  doctors.setItems(std::move(names));
}

void doktorEkle(Station& istasyon, std::string_view name) {
  const std::string kept = text::left(text::trimmed(name), doctorWidth);
  dao::Recordset& table = istasyon.stores.clinical.Doctors;
  if (kept.empty() || !table.Seek("=", kept) || !table.NoMatch()) return;
  const bool set = table.AddNew() && table.Fields("Doctor").Set(kept) && table.Update();
  if (!set) table.CancelUpdate();
}

}  // namespace shell
