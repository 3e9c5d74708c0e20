// What is left of a practice whose stations are killed in the middle of their work.
// Usage: kill_bench [kills [patients [seed]]]
//
// A station saves, renames, maintains or backs up without a pause and tells what has succeeded; it
// is killed at a random moment. Then every store and every copy in the backup is checked, what was
// told is looked for, and its place in the register must be free.
#include <array>
#include <atomic>
#include <random>

#include "bench/bench_desk.h"
#include "bench/child.h"
#include "platform/text/number.h"
#include "stores/backup.h"
#include "stores/smoking_store.h"
#include "stores/store_care.h"

namespace {

using namespace bench;

constexpr std::array works{"save", "rename", "maintenance", "backup"};
constexpr std::array storeFiles{"Personal.mdb", "Sanavel.mdb", "Smoke.mdb"};
constexpr auto patient = "Ölçüm Hastası";
constexpr long mostDoneBefore = 3;

// What the station has told so far; outlives it.
struct Told {
  std::atomic<bool> started = false;
  std::atomic<long> done = 0;
};

std::string renamed(long number) {
  return patient + std::string(" ") + std::to_string(number % 2);
}

void load(Desk& desk, const std::string& name) {
  desk.station.SeciliHasta = name;
  if (!desk.main.hastaoku()) fail(name + " cannot be loaded");
  desk.main.Eskialanmain();
}

void save(Desk& desk) {
  desk.main.mnukaydet.press();
  if (desk.main.mnukaydet.enabled()) fail("a save was refused: " + desk.main.sbDurum.panels()[2]);
}

void saveForEver(Desk& desk, Told& told) {
  load(desk, patient);
  told.started = true;
  for (;;) {
    desk.main.txtnot.setText(std::to_string(told.done + 1));
    save(desk);
    ++told.done;
  }
}

// To and fro between two names.
void renameForEver(Desk& desk, Told& told) {
  load(desk, renamed(told.done));
  told.started = true;
  for (;;) {
    desk.main.Txtİsim.setText(renamed(told.done + 1));
    save(desk);
    ++told.done;
  }
}

void maintainForEver(Desk& desk, Told& told) {
  told.started = true;
  for (;;) {
    desk.main.dosyabakimi();
    ++told.done;
  }
}

std::string backupOf(const std::string& folder) {
  return folder + "/Backup";
}

void backUpForEver(const std::string& folder, Told& told) {
  told.started = true;
  for (;;) {
    const auto others = told.done % 2 == 0 ? dao::Others::Wait : dao::Others::GoOn;
    need(stores::backUp(folder, backupOf(folder), stores::storeKinds, {}, others));
    ++told.done;
  }
}

struct Losses {
  int unsound = 0;
  int lost = 0;
  int halfDone = 0;
  int stale = 0;
  int left = 0;
};

dao::Database opened(const std::string& folder, const char* file) {
  auto store = dao::OpenDatabase(folder + "/Data/" + file);
  if (!store) fail(store.error().text());
  return std::move(*store);
}

std::int64_t count(dao::Database& store, const std::string& table, const std::string& name) {
  const auto rows = store.OpenRecordset("SELECT * FROM [" + table + "] WHERE [Name] = ?", {name});
  if (!rows) fail(rows.error().text());
  return rows->RecordCount();
}

void checkSound(const std::string& folder, Losses& losses) {
  for (const char* file : storeFiles)
    losses.unsound += opened(folder, file).integrityCheck() ? 0 : 1;
  for (const stores::StoreKind& kind : stores::storeKinds)
    losses.unsound +=
        stores::checkCopy(backupOf(folder) + "/" + std::string(kind.file), kind) ? 0 : 1;
}

// The save under way when the kill came may be there or not. Both answer with what is there.
long checkSaved(const std::string& folder, long told, Losses& losses) {
  dao::Database personal = opened(folder, "Personal.mdb");
  auto card = personal.OpenRecordset("SELECT * FROM [IDCard] WHERE [Name] = ?", {patient});
  if (!card) fail(card.error().text());
  const long kept = text::wholeNumber(card->Fields("Notes").text()).value_or(0);
  losses.lost += kept == told || kept == told + 1 ? 0 : 1;
  return kept;
}

// The name that counts, or the one after it; the records are where the card is. Tells the number
// from which the next station goes on.
long checkRenamed(const std::string& folder, long told, Losses& losses) {
  dao::Database personal = opened(folder, "Personal.mdb");
  dao::Database clinical = opened(folder, "Sanavel.mdb");
  const auto cards = [&](long number) { return count(personal, "IDCard", renamed(number)); };
  losses.lost += cards(told) + cards(told + 1) == 1 ? 0 : 1;
  const long now = cards(told) == 1 ? told : told + 1;
  for (const char* table : {"Physical Exam", "Motor"}) {
    const bool together =
        count(clinical, table, renamed(now)) == 1 && count(clinical, table, renamed(now + 1)) == 0;
    losses.halfDone += together ? 0 : 1;
  }
  return now;
}

// A station that was here all the while sees the place free; the next one is alone and tidies up.
void checkRegister(const std::string& folder, shell::StationRegister& witness, Losses& losses) {
  {
    const auto lock = witness.lock();
    for (const std::string& name : {std::string(patient), renamed(0), renamed(1)})
      losses.stale += witness.isElsewhere(name) == true ? 1 : 0;
  }
  losses.stale += witness.tryAlone() == true ? 0 : 1;
  witness.close();
  stores::removeUnfinishedCopies(folder + "/Data");
  for (const auto& entry : std::filesystem::directory_iterator(folder + "/Data"))
    losses.left += entry.path().filename().string().starts_with("NewFile") ? 1 : 0;
}

void prepare(const std::string& folder, std::size_t patients) {
  tools::PracticeOptions options;
  options.patients = patients;
  need(tools::makePractice(folder, options));
  need(stores::CreateSmokingStore(folder + "/"));
  Desk desk(folder);
  for (const std::string& name : {std::string(patient), renamed(0)}) {
    desk.main.Yeni();
    desk.main.Txtİsim.setText(name);
    desk.main.TxtDTarihi.setText("1980");
    save(desk);
  }
  for (const char* table : {"Physical Exam", "Motor"}) {
    const auto added = desk.station.stores.clinical.database.Execute(
        "INSERT INTO [" + std::string(table) + "]([Name]) VALUES(?)", {renamed(0)});
    if (!added) fail(added.error().text());
  }
  desk.main.Unload();
  std::filesystem::create_directory(backupOf(folder));
  need(stores::backUp(folder, backupOf(folder), stores::storeKinds));
}

constexpr std::size_t saving = 0;
constexpr std::size_t renaming = 1;
constexpr std::size_t maintaining = 2;  // wants to be alone
constexpr std::size_t backingUp = 3;

class Trial {
 public:
  Trial(std::string folder, unsigned seed) : folder_(std::move(folder)), random_(seed) {}

  void kill(std::size_t work);
  void print() const;

 private:
  void station(std::size_t work, Told& told) const;
  void awaitMoment(std::size_t work, const Child& child, const Told& told);
  void look();

  std::string folder_;
  std::mt19937 random_;
  std::array<long, works.size()> told_{};
  std::array<long, works.size()> succeeded_{};
  std::array<int, works.size()> killed_{};
  std::array<double, works.size()> usual_{20, 20, 20, 20};  // milliseconds for one
  Losses losses_;
};

void Trial::station(std::size_t work, Told& told) const {
  Desk desk(folder_);
  if (work == saving) saveForEver(desk, told);
  if (work == renaming) renameForEver(desk, told);
  if (work == backingUp) backUpForEver(folder_, told);
  maintainForEver(desk, told);
}

void Trial::kill(std::size_t work) {
  const Shared<Told> told;
  told->done = told_[work];
  shell::StationRegister witness;
  if (work != maintaining && !witness.open(folder_ + "/")) fail("the register cannot be opened");
  witness.letIn();
  Child child([&] { station(work, *told); });
  awaitMoment(work, child, *told);
  child.kill();
  ++killed_[work];
  succeeded_[work] += told->done - told_[work];
  told_[work] = told->done;
  if (work == maintaining && !witness.open(folder_ + "/")) fail("the register cannot be opened");
  checkSound(folder_, losses_);
  checkRegister(folder_, witness, losses_);
  look();
}

// Somewhere in the first, second, third or fourth piece of work.
void Trial::awaitMoment(std::size_t work, const Child& child, const Told& told) {
  const auto running = [&](auto awaited) {
    while (!awaited()) {
      if (!child.isRunning()) fail("the station came to an end");
      ::usleep(50);
    }
  };
  const long before = static_cast<long>(random_()) % (mostDoneBefore + 1);
  running([&] { return told.started.load(); });
  const double time = timed([&] { running([&] { return told.done >= told_[work] + before; }); });
  if (before > 0) usual_[work] = time / static_cast<double>(before);
  const double part = std::uniform_real_distribution<>(0, usual_[work])(random_);
  ::usleep(static_cast<useconds_t>(part * 1000));
}

// The next station goes on from what is there.
void Trial::look() {
  told_[saving] = checkSaved(folder_, told_[saving], losses_);
  told_[renaming] = checkRenamed(folder_, told_[renaming], losses_);
}

void Trial::print() const {
  for (std::size_t work = 0; work < works.size(); ++work)
    std::printf("%-12s %4d kills, %6ld done before them\n", works[work], killed_[work],
                succeeded_[work]);
  std::printf("unsound stores %d   lost %d   half done %d   stale locks %d   files left %d\n",
              losses_.unsound, losses_.lost, losses_.halfDone, losses_.stale, losses_.left);
}

}  // namespace

int main(int count, char** words) try {
  const auto word = [&](int at, long usual) {
    return count > at ? text::wholeNumber(words[at]).value_or(0) : usual;
  };
  const long kills = word(1, 200);
  const long patients = word(2, 2000);
  if (kills < 1 || patients < 1) fail("usage: kill_bench [kills [patients [seed]]]");
  const TemporaryFolder folder;
  prepare(folder.path(), static_cast<std::size_t>(patients));
  Trial trial(folder.path(), static_cast<unsigned>(word(3, 1)));
  for (long kill = 0; kill < kills; ++kill)
    trial.kill(static_cast<std::size_t>(kill) % works.size());
  trial.print();
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}
