#include "exam/exam_fields.h"

#include <array>

#include "exam/frm_exam.h"
#include "shell/doctors.h"

namespace exam {

namespace {

using shell::controlOf;
using shell::FieldRow;
using enum shell::Stored;
constexpr auto carried = shell::CarryOver::Yes;

constexpr std::array<FieldRow, 2> headRows{{
    {controlOf<&FrmExam::comdoktor>, "Doctor", "Doktor", shell::doctorWidth},
    {controlOf<&FrmExam::txtücret>, "Fee", "ucret", 0, Amount},
}};

constexpr std::array<FieldRow, 2> complaintRows{{
    {controlOf<&FrmExam::txtşikayet>, "Complain", "sikayet"},
    {controlOf<&FrmExam::txthikaye>, "History", "Hikaye"},
}};

constexpr std::array<FieldRow, 2> pastRows{{
    {controlOf<&FrmExam::txtözgeçmiş>, "Past Illness", "ozgecmis", 0, Text, carried},
    {controlOf<&FrmExam::txtsoygeçmiş>, "Family History", "soygecmis", 0, Text, carried},
}};

constexpr std::array<FieldRow, 4> measuredRows{{
    {controlOf<&FrmExam::txtnabız>, "Pulse", "nabiz", 0, Text, {}, shell::perMinute},
    {controlOf<&FrmExam::txtsistol>, "Systol", "Sistol", 0, Text, {}, "mmHg"},
    {controlOf<&FrmExam::txtdiastol>, "Diastol", "Diastol", 0, Text, {}, "mmHg"},
    {controlOf<&FrmExam::txtateş>, "Fever", "ates", 0, Text, {}, "°C"},
}};

constexpr std::array<FieldRow, 2> bodyRows{{
    {controlOf<&FrmExam::txtboy>, "Height", "boy", 0, Text, carried, "cm"},
    {controlOf<&FrmExam::txtkilo>, "Weight", "Kilo", 0, Text, carried, "kg"},
}};

constexpr std::array<FieldRow, 6> examinationRows{{
    {controlOf<&FrmExam::txtfizikmuayene>, "Physical Exam1", "fizikmuayene"},
    {controlOf<&FrmExam::txttahlil>, "Test", "Tetkik"},
    {controlOf<&FrmExam::txtteşhis>, "Diagnosis", "teshis"},
    {controlOf<&FrmExam::txttedavi>, "Therapy", "Tedavi"},
    {controlOf<&FrmExam::txtöneri>, "Advice", "oneri"},
    {controlOf<&FrmExam::txtkontrol>, "Control", "Kontrol"},
}};

// Neck and contraception share a column: the screen moves it itself.
constexpr std::array<FieldRow, 5> entRows{{
    {controlOf<&FrmExam::txtoralkavite>, "Physical Exam2", "oralkavite"},
    {controlOf<&FrmExam::Txtnazalkavite>, "Physical Exam3", "nazalkavite"},
    {controlOf<&FrmExam::txtSağotoskopi>, "Physical Exam4", "Otoskopi"},
    {controlOf<&FrmExam::txtSolotoskopi>, "Physical Exam5", "Otoskopi"},
    {controlOf<&FrmExam::TxtBoyun>, "Physical Exam6", "Boyun", 0, Screen},
}};

constexpr std::array<FieldRow, 6> periodRows{{
    {controlOf<&FrmExam::ComMedeniDurum>, "Marital status", "medenidurum", 0, ListIndex, carried},
    {controlOf<&FrmExam::TxtİAT>, "Menarche", "ilkadettarihi", 0, Text, carried},
    {controlOf<&FrmExam::txtSAT>, "LMD", "sonadettarihi"},
    {controlOf<&FrmExam::TxtAdedleri>, "Menstrual period", "Adetleri", 0, Text, carried},
    {controlOf<&FrmExam::txtDismenore>, "Dismenore", "Dismenore", 0, Text, carried},
    {controlOf<&FrmExam::txtvaginalakıntı>, "Discharge", "vajinalakinti", 0, Text, carried},
}};

constexpr std::array<FieldRow, 1> contraceptionRows{{
    {controlOf<&FrmExam::txtkorunma>, "Physical Exam6", "Korunma", 0, Screen},
}};

constexpr std::array<FieldRow, 6> birthRows{{
    {controlOf<&FrmExam::txtDiğer>, "Other", "diger"},
    {controlOf<&FrmExam::txtp>, "P", "P", 0, Text, carried},
    {controlOf<&FrmExam::txtg>, "G", "G", 0, Text, carried},
    {controlOf<&FrmExam::txty>, "Y", "Y", 0, Text, carried},
    {controlOf<&FrmExam::txta>, "A", "A", 0, Text, carried},
    {controlOf<&FrmExam::txtc>, "C", "C", 0, Text, carried},
}};

constexpr std::array<FieldRow, 10> eyeRows{{
    {controlOf<&FrmExam::txtgörmesağ>, "Eye1", "gorme"},
    {controlOf<&FrmExam::txtgörmesol>, "Eye2", "gorme"},
    {controlOf<&FrmExam::txttasgörsağ>, "Eye3", "tahsisligorme"},
    {controlOf<&FrmExam::txttasgörsol>, "Eye4", "tahsisligorme"},
    {controlOf<&FrmExam::txtgözlüksağ>, "Eye5", "gozluk"},
    {controlOf<&FrmExam::txtgözlüksol>, "Eye6", "gozluk"},
    {controlOf<&FrmExam::txthorizontalsağ>, "Eye7", "Horizontal"},
    {controlOf<&FrmExam::txthorizontalsol>, "Eye8", "Horizontal"},
    {controlOf<&FrmExam::txtverticalsağ>, "Eye9", "Vertikal"},
    {controlOf<&FrmExam::txtverticalsol>, "Eye10", "Vertikal"},
}};

constexpr std::array<FieldRow, 2> heartRows{{
    {controlOf<&FrmExam::txtekg>, "ECG", "EKG"},
    {controlOf<&FrmExam::txttele>, "Tele", "Tele"},
}};

constexpr std::array<FieldRow, 5> riskRows{{
    {controlOf<&FrmExam::ChkHT>, "HT", "Hipertansiyon", 0, Mark},
    {controlOf<&FrmExam::ChkDM>, "DM", "Diabetes Mellitus", 0, Mark},
    {controlOf<&FrmExam::ChkHiperlipemi>, "HL", "Hiperlipemi", 0, Mark},
    {controlOf<&FrmExam::Chksigara>, "Smoke", "Sigara", 0, Mark},
    {controlOf<&FrmExam::Chkstres>, "Stress", "Stres", 0, Mark},
}};

constexpr std::array<FieldRow, 7> pictureRows{{
    {controlOf<&FrmExam::txtp1>, "Picture1", "Resim"},
    {controlOf<&FrmExam::txtp2>, "Picture2", "Resim"},
    {controlOf<&FrmExam::txtp3>, "Picture3", "Resim"},
    {controlOf<&FrmExam::txtp4>, "Picture4", "Resim"},
    {controlOf<&FrmExam::txtp5>, "Picture5", "Resim"},
    {controlOf<&FrmExam::txtp6>, "Picture6", "Resim"},
    {controlOf<&FrmExam::txtmov>, "Mov", "Film"},
}};

template <std::size_t... Sizes>
constexpr auto joined(const std::array<FieldRow, Sizes>&... parts) {
  std::array<FieldRow, (Sizes + ...)> all{};
  auto* at = all.data();
  (..., [&] {
    for (const FieldRow& row : parts) *at++ = row;
  }());
  return all;
}

constexpr auto anamnesisRows = joined(complaintRows, pastRows);
constexpr auto specialRows =
    joined(entRows, periodRows, contraceptionRows, birthRows, eyeRows, heartRows);
constexpr auto allRows = joined(headRows, anamnesisRows, measuredRows, bodyRows, examinationRows,
                                specialRows, riskRows, pictureRows);
constexpr std::array backRows{pastRows[0], pastRows[1], bodyRows[0]};
constexpr auto generalContent = joined(anamnesisRows, examinationRows, pictureRows);
constexpr auto entContent = joined(generalContent, entRows);
constexpr auto gynecologyContent = joined(generalContent, periodRows, contraceptionRows, birthRows);
constexpr auto eyeContent = joined(generalContent, eyeRows);
constexpr auto heartContent = joined(generalContent, heartRows, riskRows);

constexpr std::array sides{
    SideCaption{controlOf<&FrmExam::txtSağotoskopi>, "sag"},
    SideCaption{controlOf<&FrmExam::txtSolotoskopi>, "Sol"},
    SideCaption{controlOf<&FrmExam::txtgörmesağ>, "sag"},
    SideCaption{controlOf<&FrmExam::txtgörmesol>, "Sol"},
    SideCaption{controlOf<&FrmExam::txttasgörsağ>, "sag"},
    SideCaption{controlOf<&FrmExam::txttasgörsol>, "Sol"},
    SideCaption{controlOf<&FrmExam::txtgözlüksağ>, "sag"},
    SideCaption{controlOf<&FrmExam::txtgözlüksol>, "Sol"},
    SideCaption{controlOf<&FrmExam::txthorizontalsağ>, "sag"},
    SideCaption{controlOf<&FrmExam::txthorizontalsol>, "Sol"},
    SideCaption{controlOf<&FrmExam::txtverticalsağ>, "sag"},
    SideCaption{controlOf<&FrmExam::txtverticalsol>, "Sol"},
};

}  // namespace

Rows examFields() {
  return allRows;
}
Rows anamnesisFields() {
  return anamnesisRows;
}
Rows examinationFields() {
  return examinationRows;
}
Rows specialFields() {
  return specialRows;
}
Rows riskFields() {
  return riskRows;
}
MeasuredFields measuredFields() {
  return {measuredRows[0], measuredRows[1], measuredRows[2],
          measuredRows[3], bodyRows[0],     bodyRows[1]};
}
Rows datedBackFields() {
  return backRows;
}
Rows contentFields(Frame frame) {
  switch (frame) {
    case Frame::Ent:
      return entContent;
    case Frame::Gynecology:
      return gynecologyContent;
    case Frame::Eye:
      return eyeContent;
    case Frame::Heart:
      return heartContent;
    case Frame::None:
      break;
  }
  return generalContent;
}
std::span<const SideCaption> sideCaptions() {
  return sides;
}

}  // namespace exam
