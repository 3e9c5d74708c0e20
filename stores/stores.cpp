#include "stores/stores.h"

#include <array>

#include "platform/files/setting_record.h"
#include "stores/clinical_schema.h"
#include "stores/personal_schema.h"
#include "stores/store_file.h"

namespace stores {

namespace {

constexpr auto personalFile = "Data/Personal.mdb";
constexpr auto clinicalFile = "Data/Sanavel.mdb";
constexpr auto settingsFile = "Data/setting.dat";

// In the order of opening.
constexpr std::array<Handle<PersonalStore>, 12> personalHandles{{
    {"IDCard", &PersonalStore::IDCard},
    {"Adressing", &PersonalStore::Adressing},
    {"Place Of Birth", &PersonalStore::PlaceOfBirth},
    {"Profession", &PersonalStore::Profession},
    {"Company", &PersonalStore::Company},
    {"Job", &PersonalStore::Job},
    {"Relationship", &PersonalStore::Relationship},
    {"Referance", &PersonalStore::Referance},
    {"Appointment", &PersonalStore::Appointment},
    {"Account", &PersonalStore::Account},
    {"Financier", &PersonalStore::Financier},
    {"Invoice", &PersonalStore::Invoice},
}};
constexpr std::array<Handle<ClinicalStore>, 23> clinicalHandles{{
    {"Physical Exam", &ClinicalStore::PhysicalExam},
    {"Doctors", &ClinicalStore::Doctors},
    {"drug", &ClinicalStore::drug},
    {"Tests", &ClinicalStore::Tests},
    {"Visit", &ClinicalStore::Visit},
    {"Operation", &ClinicalStore::Operation},
    {"Persantil", &ClinicalStore::Persantil},
    {"Vaccine", &ClinicalStore::Vaccine},
    {"Gravid", &ClinicalStore::Gravid},
    {"Gravid Control", &ClinicalStore::GravidControl},
    {"Lens", &ClinicalStore::Lens},
    {"Lens Stock", &ClinicalStore::LensStock},
    {"Hospitals", &ClinicalStore::Hospitals},
    {"Motor", &ClinicalStore::Motor},
    {"Echo", &ClinicalStore::Echo},
    {"Angio", &ClinicalStore::Angio},
    {"Efor", &ClinicalStore::Efor},
    {"Analyze", &ClinicalStore::Analyze},
    {"Pathology", &ClinicalStore::Pathology},
    {"Referance", &ClinicalStore::Referance},
    {"Sanavel Center", &ClinicalStore::SanavelCenter},
    {"tblWarn", &ClinicalStore::tblWarn},
    {"tblRem", &ClinicalStore::tblRem},
}};

template <class Store, std::size_t N>
dao::Status openStore(Store& store, const std::string& path,
                      const std::array<Handle<Store>, N>& handles, Schema schema) {
  store = {};
  auto database = openStoreFile(path);
  if (!database) return database.error();
  store.database = std::move(*database);
  return openHandles(store, handles, schema);
}

// Opens, and on any failure but a lock creates what is missing and opens again.
template <class Open, class Create>
dao::Status openOrCreate(Open open, Create create) {
  const dao::Status opened = open();
  if (opened || opened.fault() == dao::Fault::Busy) return opened;
  const dao::Status created = create();
  return created ? open() : created;
}

template <class Store>
dao::Status createInto(Store& store, const std::string& path, Schema schema) {
  store = {};
  auto database = createStore(path, dao::Order::General, schema);
  if (!database) return database.error();
  store.database = std::move(*database);
  return {};
}

dao::Status openClinical(Stores& stores) {
  return openStore(stores.clinical, stores.folder + clinicalFile, clinicalHandles,
                   clinicalSchema());
}

dao::Status openSettings(Stores& stores) {
  stores.settings.reset();
  auto file = files::RecordFile::open(stores.folder + settingsFile, files::SettingRecord::length);
  if (!file) return file.error();
  stores.settings = std::move(*file);
  return {};
}

dao::Status openPersonalOrCreate(Stores& stores) {
  return openOrCreate([&] { return ReopenPersonalStore(stores); },
                      [&] { return CreatePersonalStore(stores); });
}

dao::Status openClinicalOrCreate(Stores& stores) {
  return openOrCreate([&] { return openClinical(stores); },
                      [&] { return CreateClinicalStore(stores); });
}

bool isLocked(const std::string& path) {
  using std::chrono_literals::operator""ms;
  const auto probe = dao::OpenDatabase(path, {.access = dao::Access::ReadOnly, .busyTimeout = 0ms});
  return !probe && probe.error().fault() == dao::Fault::Busy;
}

}  // namespace

dao::Status OpenStores(Stores& stores) {
  const std::array results{openPersonalOrCreate(stores), openSettings(stores),
                           openClinicalOrCreate(stores)};
  for (const dao::Status& result : results) {
    if (!result) return result;
  }
  return {};
}

bool areOpen(const Stores& stores) {
  return stores.personal.database.isOpen() && stores.clinical.database.isOpen();
}

dao::Status OpenClosedStores(Stores& stores) {
  dao::Status first;
  const auto open = [&](const dao::Database& database, const char* file, auto opening) {
    if (database.isOpen()) return;
    const std::string path = stores.folder + file;
    const dao::Status opened =
        isLocked(path) ? dao::Status(dao::Fault::Busy, path) : opening(stores);
    if (first) first = opened;
  };
  open(stores.personal.database, personalFile, openPersonalOrCreate);
  open(stores.clinical.database, clinicalFile, openClinicalOrCreate);
  return first;
}

// A reader that still has a handle of the database does not keep the file open.
void CloseStores(Stores& stores) {
  stores.personal.database.Close();
  stores.clinical.database.Close();
  stores.personal = {};
  stores.clinical = {};
  stores.settings.reset();
}

dao::Status ReopenPersonalStore(Stores& stores) {
  return openStore(stores.personal, stores.folder + personalFile, personalHandles,
                   personalSchema());
}

dao::Status CreatePersonalStore(Stores& stores) {
  return createInto(stores.personal, stores.folder + personalFile, personalSchema());
}

dao::Status CreateClinicalStore(Stores& stores) {
  return createInto(stores.clinical, stores.folder + clinicalFile, clinicalSchema());
}

}  // namespace stores
