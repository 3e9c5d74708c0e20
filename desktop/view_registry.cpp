#include "desktop/view_registry.h"

#include "desktop/main/main_window.h"
#include "desktop/views/dialog_views.h"
#include "desktop/views/drug_view.h"
#include "desktop/views/find_view.h"
#include "desktop/views/generic_view.h"
#include "desktop/views/laboratory_views.h"
#include "desktop/views/message_views.h"
#include "desktop/views/option_view.h"
#include "desktop/views/photo_view.h"
#include "desktop/views/picture_view.h"
#include "desktop/views/print_views.h"
#include "desktop/views/record_view.h"
#include "desktop/views/save_view.h"
#include "desktop/views/splash_view.h"
#include "desktop/views/trend_view.h"
#include "desktop/views/wizard_view.h"
#include "shell/dated_record_screen.h"

namespace desktop {

std::unique_ptr<QWidget> ViewRegistry::build(forms::Form& form) const {
  const auto found = builders_.find(form.name());
  if (found != builders_.end()) return found->second(form);
  const bool record = dynamic_cast<shell::DatedRecordScreen*>(&form) != nullptr;
  return record ? recordView(form) : genericView(form);
}

ViewRegistry programViews() {
  ViewRegistry views;
  views.add("FrmMain", mainWindow);
  views.add("FrmOption", optionView);
  views.add("Logo", splashView);
  views.add("Frmbirthday", birthdayView);
  views.add("frmpass", passwordView);
  views.add("Frmkey", hiddenNamesView);
  views.add("frmprogress", progressView);
  views.add("frmbakim", careView);
  views.add("frmabout", aboutView);
  views.add("frmmax", photoView);
  views.add("frmdrug", drugView);
  views.add("FrmFind", findView);
  views.add("FrmSave", saveView);
  views.add("frmpattern", patternView);
  views.add("frmprewive", prewiveView);
  views.add("frmpreview1", preview1View);
  views.add("frmprinter", printerView);
  views.add("frmtest", testResultsView);
  views.add("frmtestedit", testCatalogueView);
  views.add("frmdemand", testRequestView);
  views.add("frmtestfilter", testFilterView);
  views.add("frmtesttrend", testTrendView);
  views.add("frmpicture", pictureView);
  views.add("frmmesajlar", messagesView);
  views.add("Frmmsggon", messageView);
  views.add("frmayar", messageSettingsView);
  views.add("frmwizarddrug", prescriptionWizardView);
  return views;
}

}  // namespace desktop
