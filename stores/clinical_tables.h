// The definitions of the Clinical store's tables, by what they serve. A long text is of any length.
#pragma once

#include <array>

#include "stores/schema.h"

namespace stores::clinical {

// A patient's records are found by the name that each of them carries.
inline constexpr std::array recordHelpers{dao::HelperDef{dao::HelperIndex::Plain, "Name"}};

extern const dao::TableDef physicalExam;
extern const dao::TableDef doctors;
extern const dao::TableDef drug;
extern const dao::TableDef tests;
extern const dao::TableDef visit;
extern const dao::TableDef analyze;

extern const dao::TableDef persantil;
extern const dao::TableDef vaccine;
extern const dao::TableDef gravid;
extern const dao::TableDef gravidControl;
extern const dao::TableDef motor;
extern const dao::TableDef lens;
extern const dao::TableDef lensStock;

extern const dao::TableDef operation;
extern const dao::TableDef hospitals;
extern const dao::TableDef pathology;
extern const dao::TableDef referance;
extern const dao::TableDef sanavelCenter;
extern const dao::TableDef echo;
extern const dao::TableDef angio;
extern const dao::TableDef efor;

extern const dao::TableDef tblWarn;
extern const dao::TableDef tblRem;

}  // namespace stores::clinical
