// The prescription of the tour: drugs of the catalogue, the print wizard, and its preview.
#pragma once

#include <QWidget>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/qt_host.h"
#include "documents/frm_preview1.h"
#include "documents/frm_wizard_drug.h"
#include "exam/frm_drug.h"

namespace desktop {

// The drug screen is open from construction to destruction, for the patient on the card. A practice
// without a letterhead picture has one as long.
class SamplePrescription {
 public:
  SamplePrescription(QtHost& host, shell::Station& istasyon);
  ~SamplePrescription();

  [[nodiscard]] exam::FrmDrug& drugs() { return drugs_; }
  // Opens the wizard over it; edits a place there; opens the preview over the wizard.
  [[nodiscard]] documents::FrmWizardDrug& openWizard();
  [[nodiscard]] QWidget& editedWizard();
  [[nodiscard]] QWidget& openPreview();
  // Prints the page of the wizard into a file.
  void print(const std::string& file) const;

 private:
  void compose();
  void drawLetterhead();

  QtHost& host_;
  shell::Station& istasyon_;
  std::vector<std::string> drawn_;  // files that go with this
  exam::FrmDrug drugs_;
  std::optional<documents::FrmWizardDrug> wizard_;
  std::optional<documents::FrmPreview1> preview_;
};

}  // namespace desktop
