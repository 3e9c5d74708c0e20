#include "tools/exam_maker.h"

#include <array>
#include <utility>

#include "platform/text/number.h"
#include "shell/speciality.h"
#include "tools/exam_cases.h"

namespace tools {

namespace {

constexpr auto doctorRows =
    std::to_array<std::string_view>({"Dr. Işık Çağlayan", "Dr. Şule Güngör", "Uzm. Dr. Ömer İnce"});
constexpr auto pastRows = std::to_array<std::string_view>(
    {"Apendektomi (2004)", "Astım, düzenli inhaler kullanıyor", "Hipertansiyon, 6 yıldır",
     "Penisilin alerjisi", "Özellik yok", "Geçirilmiş hepatit A", "Guatr nedeniyle izlemde"});
constexpr auto familyRows = std::to_array<std::string_view>(
    {"Babada koroner arter hastalığı", "Annede tip 2 diyabet", "Özellik yok",
     "Kardeşinde ailesel Akdeniz ateşi", "Anneannede meme kanseri"});
constexpr auto controlRows = std::to_array<std::string_view>(
    {"1 hafta sonra", "10 gün sonra, sonuçlarla", "1 ay sonra", "3 ay sonra", "Gerekirse"});
constexpr auto contraceptionRows =
    std::to_array<std::string_view>({"RİA", "Kondom", "Oral kontraseptif", "Yok"});

constexpr int adultAge = 18;
constexpr int daysOfYear = 365;

}  // namespace

std::span<const std::string_view> examiners() {
  return doctorRows;
}

Card ExamMaker::make(const Patient& patient, const Visit& visit) {
  card_.clear();
  put("Name", patient.person.name);
  put("Date", visit.date);
  put("Count", visit.number);
  put("Speciality", visit.bransNo);
  put("Doctor", random_.pickRanked(examiners()));
  put("Fee", random_.percent(60) ? text::amount(50 * between(6, 30)) : std::string());
  story(visit);
  measurements(patient, visit);
  if (visit.bransNo == shell::brans::gynecology) gynecology(patient);
  return std::exchange(card_, {});
}

void ExamMaker::put(std::string_view column, dao::Value value) {
  card_.push_back({column, std::move(value)});
}

int ExamMaker::between(int lowest, int highest) {
  return lowest + static_cast<int>(random_.below(static_cast<std::size_t>(highest - lowest + 1)));
}

void ExamMaker::story(const Visit& visit) {
  const ExamCase& written = random_.pick(examCases(visit.bransNo));
  put("Complain", written.complaint);
  put("History", written.history);
  put("Physical Exam1", written.examination);
  put("Test", written.tests);
  put("Diagnosis", written.diagnosis);
  put("Therapy", written.therapy);
  put("Advice", written.advice);
  put("Control", random_.pickRanked(std::span<const std::string_view>(controlRows)));
  if (random_.percent(70))
    put("Past Illness", random_.pick(std::span<const std::string_view>(pastRows)));
  if (random_.percent(50))
    put("Family History", random_.pick(std::span<const std::string_view>(familyRows)));
}

// A child grows; a grown-up stays about as tall.
void ExamMaker::measurements(const Patient& patient, const Visit& visit) {
  const int age = static_cast<int>(text::daysBetween(patient.birth, visit.date)) / daysOfYear;
  const int years = std::min(age, adultAge);
  put("Height", std::to_string(52 + years * 6 + between(0, 10)));
  put("Weight", std::to_string(4 + years * 3 + between(0, 6 + years)));
  put("Pulse", std::to_string(age < 2 ? between(100, 140) : between(62, 98)));
  put("Fever", text::plainText(36 + between(2, 24) / 10.0));
  if (age < adultAge) return;
  put("Systol", std::to_string(10 * between(10, 16)));
  put("Diastol", std::to_string(10 * between(6, 9)));
}

void ExamMaker::gynecology(const Patient& patient) {
  put("Marital status", patient.age < 22 ? 0 : between(0, 3));
  put("Menarche", std::to_string(between(11, 15)));
  put("LMD", std::to_string(between(1, 28)) + "." + std::to_string(between(1, 12)));
  put("Menstrual period", "5/28");
  put("Physical Exam6", random_.pick(std::span<const std::string_view>(contraceptionRows)));
  const int births = between(0, 4);
  put("G", std::to_string(births + between(0, 1)));
  put("P", std::to_string(births));
  put("Y", std::to_string(births));
}

}  // namespace tools
