// The fields of the examination: the rows of the record, and the parts in which they are reported.
#pragma once

#include <span>

#include "exam/exam_speciality.h"
#include "shell/field_row.h"

namespace exam {

using Rows = std::span<const shell::FieldRow>;

// All of them.
[[nodiscard]] Rows examFields();

// The report's parts: before and behind the measurements, then what the specialities add.
[[nodiscard]] Rows anamnesisFields();
[[nodiscard]] Rows examinationFields();
[[nodiscard]] Rows specialFields();
[[nodiscard]] Rows riskFields();

// What is measured stands on one line of the report.
struct MeasuredFields {
  const shell::FieldRow& pulse;
  const shell::FieldRow& systole;
  const shell::FieldRow& diastole;
  const shell::FieldRow& fever;
  const shell::FieldRow& height;
  const shell::FieldRow& weight;
};
[[nodiscard]] MeasuredFields measuredFields();

// A new record that is dated back takes these from the record before it.
[[nodiscard]] Rows datedBackFields();
// The fields that make a record worth storing: texts, what the speciality's page shows, pictures.
// Vital signs, doctor and fee alone are too little.
[[nodiscard]] Rows contentFields(Frame frame);

// A field of a pair: the word for its side stands behind the caption.
struct SideCaption {
  forms::Control& (*control)(forms::Form& form);
  std::string_view sideKey;
};
[[nodiscard]] std::span<const SideCaption> sideCaptions();

}  // namespace exam
