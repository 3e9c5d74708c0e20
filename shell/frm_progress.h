// Long work in front of the user: how far it is, and a button that stops it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "shell/station.h"

namespace shell {

// What is counted: rows, or the share of the whole.
enum class ProgressUnit { Rows, Percent };

struct SlicedWork {
  std::string title;
  std::int64_t total = 0;
  // Works for a moment and tells how much is done by then; none when there is no more to do. What a
  // slice did stays done when the work is stopped behind it.
  std::function<std::optional<std::int64_t>()> slice;
  ProgressUnit unit = ProgressUnit::Rows;
};

// Shown modally, it runs the work slice by slice and closes behind the last one. Closing it stops
// the work.
class FrmProgress : public forms::Form {
 public:
  FrmProgress(Station& istasyon, SlicedWork work);
  ~FrmProgress() override { *yasiyor_ = false; }

  forms::Label Lsayi{*this, "Lsayi"};  // done and in all
  forms::ProgressBar PBdurum{*this, "PBdurum"};
  forms::CommandButton butdurdur{*this, "butdurdur"};

  void Load() override;
  void Unload() override { *yasiyor_ = false; }

 private:
  void goster(std::int64_t done);
  void surdur();
  void siradaki();

  Station& istasyon;
  SlicedWork is_;
  std::shared_ptr<bool> yasiyor_ = std::make_shared<bool>(true);
};

// Loads and shows the screen; comes back when the work is done or was stopped.
void surdurerekYap(Station& istasyon, SlicedWork work);

}  // namespace shell
