// The window of the run of maintenance: what is done to which file, how far it is, and a button
// that stops it where stopping is safe.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "shell/station.h"

namespace shell {

class FrmCare : public forms::Form {
 public:
  // The work begins when the window is shown, and the window closes behind it.
  using Work = std::function<void(FrmCare&)>;
  FrmCare(Station& istasyon, Work work);
  ~FrmCare() override { *yasiyor_ = false; }

  forms::Label Lmetin{*this, "Lmetin"};
  forms::ProgressBar PBdurum{*this, "PBdurum"};
  forms::StatusBar sbDurum{*this, "sbDurum", 1};
  forms::CommandButton butdurdur{*this, "butdurdur"};

  void Load() override;
  // The user's wish to close the window stops the work, which then closes it.
  [[nodiscard]] bool QueryUnload() override;

  // What is being done from now on.
  void tell(std::string state);
  // How far the whole work is, 0 to 1000. False when it is to stop.
  [[nodiscard]] bool advance(std::int64_t thousandths);
  [[nodiscard]] bool stopped() const { return durduruldu_; }

 private:
  void calis();

  Station& istasyon;
  Work is_;
  bool durduruldu_ = false;
  bool bitti_ = false;
  std::chrono::steady_clock::time_point cizildi_{};
  std::shared_ptr<bool> yasiyor_ = std::make_shared<bool>(true);
};

}  // namespace shell
