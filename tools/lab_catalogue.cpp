#include "tools/lab_catalogue.h"

#include <array>

namespace tools {

namespace {

constexpr int words = -1;

constexpr std::array<CatalogueTest, 44> tests{{
    {"Açlık Kan Şekeri", "mg/dL", "70", "105", 0, "En az 8 saat açlık gerekir."},
    {"Tokluk Kan Şekeri", "mg/dL", "", "140", 0, "Yemeğe başladıktan 2 saat sonra."},
    {"HbA1c", "%", "4.0", "5.6", 1, "Son üç ayın ortalaması."},
    {"Üre", "mg/dL", "17", "43", 0},
    {"Kreatinin", "mg/dL", "0.6", "1.2", 2},
    {"Ürik Asit", "mg/dL", "2.6", "6.0", 1},
    {"Total Kolesterol", "mg/dL", "", "200", 0, "12 saat açlık gerekir."},
    {"HDL Kolesterol", "mg/dL", "40", "", 0},
    {"LDL Kolesterol", "mg/dL", "", "130", 0},
    {"Trigliserid", "mg/dL", "", "150", 0, "12 saat açlık gerekir."},
    {"AST (SGOT)", "U/L", "", "40", 0},
    {"ALT (SGPT)", "U/L", "", "41", 0},
    {"GGT", "U/L", "5", "36", 0},
    {"Alkalen Fosfataz", "U/L", "35", "105", 0},
    {"LDH", "U/L", "135", "225", 0},
    {"Total Bilirubin", "mg/dL", "0.3", "1.2", 2},
    {"Direkt Bilirubin", "mg/dL", "", "0.3", 2},
    {"Total Protein", "g/dL", "6.4", "8.3", 1},
    {"Albumin", "g/dL", "3.5", "5.2", 1},
    {"Sodyum", "mmol/L", "136", "145", 0},
    {"Potasyum", "mmol/L", "3.5", "5.1", 1},
    {"Klor", "mmol/L", "98", "107", 0},
    {"Kalsiyum", "mg/dL", "8.6", "10.2", 1},
    {"Fosfor", "mg/dL", "2.5", "4.5", 1},
    {"Magnezyum", "mg/dL", "1.6", "2.6", 1},
    {"Demir", "µg/dL", "37", "145", 0},
    {"Demir Bağlama Kapasitesi", "µg/dL", "228", "428", 0},
    {"Ferritin", "ng/mL", "13", "150", 0},
    {"Vitamin B12", "pg/mL", "197", "771", 0},
    {"Vitamin D (25-OH)", "ng/mL", "20", "50", 1},
    {"Folik Asit", "ng/mL", "4.6", "18.7", 1},
    {"TSH", "mIU/L", "0.27", "4.2", 2, "Sabah alınması uygundur."},
    {"Serbest T3", "pg/mL", "2.0", "4.4", 1},
    {"Serbest T4", "ng/dL", "0.93", "1.7", 2},
    {"CRP", "mg/L", "", "5", 1},
    {"Sedimantasyon", "mm/saat", "", "20", 0},
    {"Lökosit", "10³/µL", "4.0", "10.0", 1},
    {"Hemoglobin", "g/dL", "12.0", "16.0", 1},
    {"Hematokrit", "%", "36", "46", 0},
    {"MCV", "fL", "80", "100", 0},
    {"Trombosit", "10³/µL", "150", "400", 0},
    {"HBsAg", "", "", "", words},
    {"Anti-HCV", "", "", "", words},
    {"Gaitada Gizli Kan", "", "", "", words, "Üç gün üst üste örnek alınır."},
}};

constexpr std::array<std::string_view, 6> sugar{"Açlık Kan Şekeri", "HbA1c", "Tokluk Kan Şekeri",
                                                "Kreatinin",        "Üre",   "Trigliserid"};
constexpr std::array<std::string_view, 5> lipids{"Total Kolesterol", "HDL Kolesterol",
                                                 "LDL Kolesterol", "Trigliserid", "ALT (SGPT)"};
constexpr std::array<std::string_view, 4> thyroid{"TSH", "Serbest T4", "Serbest T3",
                                                  "Vitamin D (25-OH)"};
constexpr std::array<std::string_view, 7> blood{"Hemoglobin", "Hematokrit", "MCV",        "Lökosit",
                                                "Trombosit",  "Ferritin",   "Vitamin B12"};
constexpr std::array<std::string_view, 7> liver{
    "AST (SGOT)", "ALT (SGPT)", "GGT", "Alkalen Fosfataz", "Total Bilirubin", "HBsAg", "Anti-HCV"};
constexpr std::array<std::string_view, 4> inflammation{"CRP", "Sedimantasyon", "Lökosit",
                                                       "Gaitada Gizli Kan"};
constexpr std::array<Panel, 6> all{sugar, lipids, thyroid, blood, liver, inflammation};

}  // namespace

std::span<const CatalogueTest> catalogueTests() {
  return tests;
}
std::span<const Panel> panels() {
  return all;
}

}  // namespace tools
