#include "shell/patient_warning.h"

#include "platform/text/utf8.h"
#include "shell/text_lookup.h"

namespace shell {

Warned uyariGoster(Station& istasyon, std::string_view patient, forms::Label& label) {
  constexpr int nameWidth = 50;
  dao::Recordset& warnings = istasyon.stores.clinical.tblWarn;
  const std::string name = text::left(patient, nameWidth);
  const bool warned = !name.empty() && warnings.Seek("=", name) && !warnings.NoMatch();
  label.setToolTip(metinbul(istasyon, "warning"));
  label.setCaption(warned ? text::trim(warnings.Fields("warn").text()) : std::string());
  label.setVisible(!label.caption().empty());
  return warned ? Warned::Yes : Warned::No;
}

}  // namespace shell
