#include "desktop/view_registry.h"

#include "desktop/main/main_window.h"
#include "desktop/views/dialog_views.h"
#include "desktop/views/generic_view.h"
#include "desktop/views/option_view.h"
#include "desktop/views/photo_view.h"
#include "desktop/views/picture_view.h"
#include "desktop/views/splash_view.h"

namespace desktop {

std::unique_ptr<QWidget> ViewRegistry::build(forms::Form& form) const {
  const auto found = builders_.find(form.name());
  return found == builders_.end() ? genericView(form) : found->second(form);
}

ViewRegistry programViews() {
  ViewRegistry views;
  views.add("FrmMain", mainWindow);
  views.add("FrmOption", optionView);
  views.add("Logo", splashView);
  views.add("Frmbirthday", birthdayView);
  views.add("frmpass", passwordView);
  views.add("frmabout", aboutView);
  views.add("frmmax", photoView);
  views.add("frmpicture", pictureView);
  return views;
}

}  // namespace desktop
