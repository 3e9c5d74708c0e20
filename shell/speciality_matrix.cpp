#include "shell/speciality_matrix.h"

#include <algorithm>

namespace shell::matrix {

namespace {

using namespace std::string_view_literals;

constexpr std::array clinicalEntries{
    "mnumuayene1"sv, "MnuMuayene2"sv,      "MnuMuayene3"sv,     "MnuMuayene4"sv,  "MnuMuayene5"sv,
    "MnuMuayene6"sv, "MnuMuayene7"sv,      "Mnumuayene9"sv,     "MnuMuayene10"sv, "MnuMuayene20"sv,
    "mnuasi"sv,      "mnumotmengelişme"sv, "mnufizikgelişme"sv, "mnugebetakip"sv, "mnuameliyat"sv,
    "mnulens"sv,     "mnulensstok"sv,      "mnueko"sv,          "mnuefor"sv,      "mnuanjiyo"sv,
    "mnuekoara"sv,   "mnueforara"sv,       "mnuanjiyoara"sv,    "mnulensara"sv};
constexpr std::array onlyAtStart{"mnumuayene13"sv, "mnumuayene14"sv, "mnumuayenetarihleri"sv,
                                 "mnubekdoğum"sv};
constexpr std::array onlyAtSwitch{"mnuraporara"sv};

template <std::size_t N, std::size_t M>
constexpr auto joined(const std::array<std::string_view, N>& a,
                      const std::array<std::string_view, M>& b) {
  std::array<std::string_view, N + M> all{};
  std::ranges::copy(b, std::ranges::copy(a, all.begin()).out);
  return all;
}
constexpr auto allAtStart = joined(clinicalEntries, onlyAtStart);
constexpr auto allAtSwitch = joined(clinicalEntries, onlyAtSwitch);

constexpr std::array noOperationSearch{"mnuameliyatara"sv};
constexpr std::array operation{"mnuameliyat"sv};
constexpr std::array child{"mnuasi"sv, "mnumotmengelişme"sv, "mnufizikgelişme"sv};
constexpr std::array childAtSwitch{"mnuasi"sv, "mnumotmengelişme"sv, "mnufizikgelişme"sv,
                                   "MnuMuayene3"sv};
constexpr std::array pregnancy{"mnugebetakip"sv, "mnuameliyat"sv, "mnubekdoğum"sv};
constexpr std::array pregnancyAtSwitch{"mnugebetakip"sv, "mnuameliyat"sv};
constexpr std::array eye{"mnulens"sv, "mnulensstok"sv, "mnuameliyat"sv, "mnulensara"sv};
constexpr std::array eyeAtSwitch{"mnulens"sv, "mnulensstok"sv, "mnuameliyat"sv, "MnuMuayene5"sv};
constexpr std::array polyclinicShown{"Picbranslar"sv, "mnumuayenetarihleri"sv};
constexpr std::array polyclinicHidden{"mnuameliyatara"sv, "panoresim"sv};
constexpr std::array report{"mnuraporara"sv};
constexpr std::array pathologyAtSwitch{"Mnumuayene9"sv, "mnuraporara"sv};
constexpr std::array reportHidden{"mnugünlükmuayeneler"sv, "mnumuayeneara"sv, "mnuameliyatara"sv,
                                  "mnutestara"sv,          "mnutest"sv,       "cizgi7"sv};
constexpr std::array heart{"mnueko"sv,    "mnuefor"sv,    "mnuanjiyo"sv,
                           "mnuekoara"sv, "mnueforara"sv, "mnuanjiyoara"sv};
constexpr std::array heartAtSwitch{"mnueko"sv,       "mnuefor"sv,   "mnuanjiyo"sv,
                                   "MnuMuayene10"sv, "mnuekoara"sv, "mnueforara"sv};
constexpr std::array smokeShown{"mnusigarabp"sv};
constexpr std::array smokeHidden{"mnuameliyatara"sv, "mnuraporara"sv, "cizgi7"sv, "çizgi8"sv,
                                 "mnuara"sv};
constexpr std::array first{"mnumuayene1"sv};

constexpr std::array<Row, 15> startRows{{
    {1, "mnumuayene1", {}, noOperationSearch},
    {2, "MnuMuayene2", operation, {}},
    {3, "MnuMuayene3", child, noOperationSearch},
    {4, "MnuMuayene4", pregnancy, {}},
    {5, "MnuMuayene5", eye, {}},
    {6, "MnuMuayene6", operation, {}},
    {7, "MnuMuayene7", operation, {}},
    {8, "mnumuayene1", polyclinicShown, polyclinicHidden},
    {9, "Mnumuayene9", report, reportHidden},
    {10, "MnuMuayene10", heart, noOperationSearch},
    {11, "mnumuayene1", {}, noOperationSearch},
    {12, "MnuMuayene2", operation, {}},
    {13, "", smokeShown, smokeHidden},
    {14, "mnumuayene14", report, reportHidden},
    {20, "mnumuayene1", {}, noOperationSearch},
}};

// A switch leaves the examination's own entry hidden for 2, 4, 6, 7 and 12: the toolbar is the way
// to it.
constexpr std::array<Row, 11> switchRows{{
    {1, "", first, {}},
    {2, "", operation, {}},
    {3, "", childAtSwitch, {}},
    {4, "", pregnancyAtSwitch, {}},
    {5, "", eyeAtSwitch, {}},
    {6, "", operation, {}},
    {7, "", operation, {}},
    {9, "", pathologyAtSwitch, reportHidden},
    {10, "", heartAtSwitch, {}},
    {11, "", first, {}},
    {20, "", first, {}},
}};

const Row* rowOf(std::span<const Row> rows, int bransNo) {
  const auto found = std::ranges::find(rows, bransNo, &Row::BransNo);
  return found == rows.end() ? nullptr : &*found;
}

}  // namespace

Names hiddenAtStart() {
  return allAtStart;
}
Names hiddenAtSwitch() {
  return allAtSwitch;
}
const Row* atStart(int bransNo) {
  return rowOf(startRows, bransNo);
}
const Row* atSwitch(int bransNo) {
  return rowOf(switchRows, bransNo == 12 ? 2 : bransNo);
}

}  // namespace shell::matrix
