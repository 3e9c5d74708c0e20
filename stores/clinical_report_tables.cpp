#include "stores/clinical_tables.h"

#include <array>

namespace stores::clinical {

namespace {

// Of the few fields that were never given a width.
constexpr int unstatedWidth = 255;

constexpr std::array operationFields{longText("OpNot"),
                                     longText("Operation"),
                                     longText("Diagnosis"),
                                     longText("HP Diagnosis"),
                                     longText("Complication"),
                                     text("Name", 40),
                                     date("Date"),
                                     text("Doctor", 40),
                                     number("Count"),
                                     integer("Speciality"),
                                     text("Picture1", 255),
                                     text("Picture2", 255),
                                     text("Picture3", 255),
                                     text("Picture4", 255),
                                     text("Picture5", 255),
                                     text("Picture6", 255),
                                     text("Assistant1", 40),
                                     text("Assistant2", 40),
                                     text("Assistant3", 40),
                                     text("anes'thetist1", 40),
                                     text("anes'thetist2", 40),
                                     text("Nurse1", 40),
                                     text("Nurse2", 40),
                                     text("Nurse3", 40),
                                     text("Hospital", 100),
                                     text("Anesthetize", 200),
                                     text("Prodiagnosis", 100),
                                     text("Fee", 20),
                                     text("Mov", 255)};
constexpr std::array operationIndexes{primaryKey("Count")};

constexpr std::array hospitalsFields{text("Hospital", 100)};
constexpr std::array hospitalsIndexes{primaryKey("Hospital")};

constexpr std::array pathologyFields{longText("Makroscopi"),   longText("Microscopi"),
                                     longText("Diagnosis"),    longText("Yorum"),
                                     text("Name", 40),         date("Date"),
                                     text("Doctor", 40),       number("Count"),
                                     integer("Speciality"),    text("Fee", 20),
                                     text("Alınma Yeri", 100), text("Alınma Şekli", 100),
                                     text("klinik tanı", 100), text("klinik bulgu", 100),
                                     text("Referance", 50),    text("Sanavel Center", 100),
                                     date("Biopsi Date"),      text("Picture1", 255),
                                     text("Picture2", 255),    text("Picture3", 255),
                                     text("Picture4", 255),    text("Picture5", 255),
                                     text("Picture6", 255)};
constexpr std::array pathologyIndexes{primaryKey("Count")};

constexpr std::array referanceFields{text("Referance", 40)};
constexpr std::array referanceIndexes{primaryKey("Referance")};

constexpr std::array sanavelCenterFields{text("Sanavel Center", 100)};
constexpr std::array sanavelCenterIndexes{primaryKey("Sanavel Center")};

constexpr std::array echoFields{text("Name", 40),
                                date("Date"),
                                text("Doctor", 40),
                                number("Count"),
                                integer("Speciality"),
                                text("Fee", 20),
                                text("Height", 4),
                                text("Weight", 4),
                                text("File Number", 10),
                                text("Method", 60),
                                text("Windows", 40),
                                text("Aorta", 10),
                                text("Left V çıkış Yolu", unstatedWidth),
                                text("Left Atrium", 10),
                                text("Left ventricle(systole)", 10),
                                text("Left ventricle(diastole)", 10),
                                text("Right ventricle(sırtüstü)", 10),
                                text("Right ventricle(Left)", 10),
                                text("Mitral annulus", 10),
                                text("Aorta annulus", 10),
                                text("Right Atrium", 10),
                                text("Saptum basal(diastole)", 10),
                                text("Saptum basal(systole)", 10),
                                text("Posterior(diastole)", 10),
                                text("Posterior(systole)", 10),
                                text("Pulmonary arter", 10),
                                text("Oransal Kısalma", 10),
                                text("Atım Oranı", 10),
                                text("End Diastolic Volum", 10),
                                text("End Systolic Volum", 10),
                                text("Cardiac Output", 10),
                                text("Atım indeksi", 10),
                                text("Kalp çıktısı", 10),
                                text("Heart beat", 10),
                                text("MVP", 10),
                                text("MDZ", 10),
                                text("IVRZ", 10),
                                text("MBYZ", 10),
                                text("E/A", 10),
                                text("AY Eğimi", 10),
                                text("AYBYZ", 10),
                                text("Pulmoner V max", 10),
                                text("Triküspit V max", 10),
                                text("Aort V max", 10),
                                text("Mitral E", 10),
                                text("Mitral A", 10),
                                text("Diagnosis", 100),
                                text("Explanation", 200),
                                text("Picture1", 255),
                                text("Picture2", 255),
                                text("Picture3", unstatedWidth),
                                text("Picture4", unstatedWidth),
                                text("Picture5", unstatedWidth),
                                text("Picture6", unstatedWidth),
                                text("Mov", unstatedWidth)};
constexpr std::array echoIndexes{primaryKey("Count")};

constexpr std::array angioFields{text("Name", 40),
                                 date("Date"),
                                 text("Doctor", 40),
                                 number("Count"),
                                 integer("Speciality"),
                                 text("Fee", 20),
                                 text("Picture1", 255),
                                 text("Picture2", 255),
                                 text("Picture3", 255),
                                 text("Picture4", 255),
                                 text("Picture5", 255),
                                 text("Picture6", 255),
                                 text("Sex", 15),
                                 text("Weight", 8),
                                 text("Height", 8),
                                 text("Vicut Yüzeyi", 20),
                                 text("Kayıt no", 20),
                                 text("Test no", 20),
                                 text("Assistant1", 40),
                                 text("Assistant2", 40),
                                 text("Referance", 40),
                                 text("Hospital", 100),
                                 text("Indication", 100),
                                 text("Giriş Yeri", 100),
                                 text("Contrast material", 100),
                                 text("drug", 100),
                                 text("Left Ventricle Press(0)", 20),
                                 text("Left Ventricle Press(1)", 20),
                                 text("Left Atrium", 20),
                                 text("Aorta", 20),
                                 text("Pulmonary capillary", 20),
                                 text("Pulmonary artery", 20),
                                 text("Right Atrium", 20),
                                 text("Right Ventricle", 20),
                                 text("Stroke volume", 20),
                                 text("Other", 20),
                                 text("Left Ventricle", 250),
                                 text("Coronary arteries", 250),
                                 text("Diagnosis", 250),
                                 text("Decision", 250),
                                 text("Picture7", 255),
                                 text("Picture8", 255),
                                 text("Mov", 255)};
constexpr std::array angioIndexes{primaryKey("Count")};

constexpr std::array eforFields{text("Name", 40),
                                date("Date"),
                                text("Doctor", 40),
                                number("Count"),
                                integer("Speciality"),
                                text("Fee", 20),
                                text("Picture1", 255),
                                text("Picture2", 255),
                                text("Picture3", 255),
                                text("Picture4", 255),
                                text("Picture5", 255),
                                text("Picture6", 255),
                                text("drug", 80),
                                text("procedure", 30),
                                text("Heart rate", 3),
                                text("End the exercise", 80),
                                text("ECG", 80),
                                text("Chest pain", 30),
                                text("Arrhythmia type", 30),
                                text("Arrhythmia time", 30),
                                text("Systol(0)", 3),
                                text("Diastol(0)", 3),
                                text("Systol(max)", 3),
                                text("Diastol(max)", 3),
                                text("MET", 80),
                                text("Exercise time", 80),
                                text("Other", 80),
                                text("ST depression type", 30),
                                text("ST depression time", 30),
                                text("ST segment elevation", 30),
                                text("Explaination", 250)};
constexpr std::array eforIndexes{primaryKey("Count")};

}  // namespace

const dao::TableDef operation{"Operation", operationFields, operationIndexes, recordHelpers};
const dao::TableDef hospitals{"Hospitals", hospitalsFields, hospitalsIndexes, {}};
const dao::TableDef pathology{"Pathology", pathologyFields, pathologyIndexes, recordHelpers};
const dao::TableDef referance{"Referance", referanceFields, referanceIndexes, {}};
const dao::TableDef sanavelCenter{"Sanavel Center", sanavelCenterFields, sanavelCenterIndexes, {}};
const dao::TableDef echo{"Echo", echoFields, echoIndexes, recordHelpers};
const dao::TableDef angio{"Angio", angioFields, angioIndexes, recordHelpers};
const dao::TableDef efor{"Efor", eforFields, eforIndexes, recordHelpers};

}  // namespace stores::clinical
