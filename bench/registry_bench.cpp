// How quickly the patient card answers in a large practice, without the windows that show it.
// Usage: registry_bench [patients]
//
// Each line compares the card with the least work that gives the same records: for the list of
// names that is dao::PrefixReader alone, walking the same index; for a load and a save it is the
// record alone. Ours and baseline are measured in turn; the medians are shown.
#include "bench/bench_desk.h"
#include "bench/lines.h"
#include "platform/text/number.h"
#include "registry/card_fields.h"
#include "shell/text_lookup.h"
#include "tools/practice.h"

namespace {

using namespace bench;

constexpr std::size_t rounds = 7;
struct Listing {
  double total = 0;
  double longestSlice = 0;
  std::size_t names = 0;
};

// What the card does once the delay after the last key is over, to the last name.
Listing listThroughCard(Desk& desk, std::string_view typed) {
  Listing listing;
  const auto slice = [&](auto work) {
    const double time = timed(work);
    listing.total += time;
    listing.longestSlice = std::max(listing.longestSlice, time);
  };
  desk.main.Txtİsim.setText(typed);
  slice([&] { desk.main.datlisteleTUR(); });
  while (!desk.host.tasks.empty()) {
    const auto task = std::move(desk.host.tasks.front());
    desk.host.tasks.pop_front();
    slice(task);
  }
  listing.names = desk.main.Lstdat.count();
  return listing;
}

std::size_t walkIndex(const dao::Database& database, std::string_view typed) {
  auto reader = dao::PrefixReader::open(database, "IDCard", "Name", dao::Fold::Turkish, typed);
  if (!reader) fail(reader.error().text());
  for (;;) {
    const auto done = reader->step();
    if (!done) fail(done.error().text());
    if (*done) return reader->rows().size();
  }
}

void measureList(Desk& desk, std::string_view typed) {
  std::vector<double> totals;
  std::vector<double> slices;
  std::vector<double> walks;
  Listing listing;
  std::size_t rows = 0;
  for (std::size_t round = 0; round < rounds; ++round) {
    listing = listThroughCard(desk, typed);
    totals.push_back(listing.total);
    slices.push_back(listing.longestSlice);
    const dao::Database& database = desk.station.stores.personal.database;
    walks.push_back(timed([&] { rows = walkIndex(database, typed); }));
  }
  // Hidden patients are walked over and not listed.
  if (listing.names == 0 || listing.names > rows) fail("the list does not hold the names");
  const std::string what = "list \"" + std::string(typed) + "\"";
  print(atMost(what + ", " + std::to_string(listing.names) + " names", median(totals),
               median(walks), 1.5));
  print(belowFrame(what + ", longest slice", median(slices)));
  print(belowFrame(what + ", longest slice of all rounds", *std::ranges::max_element(slices)));
}

// A key press: the field's text changes, then the key is let go.
void measureKeys(Desk& desk) {
  std::vector<double> times;
  for (std::size_t round = 0; round < rounds; ++round) {
    for (const char* typed : {"M", "Me", "Meh"}) {
      times.push_back(timed([&] {
        desk.main.Txtİsim.setText(typed);
        desk.main.Txtİsim.KeyUp(forms::Key{.code = 'E'});
      }));
    }
  }
  print(belowFrame("key in the name field", median(times)));
  print(belowFrame("key in the name field, longest", *std::ranges::max_element(times)));
}

std::vector<std::string> someNames(Desk& desk, std::size_t count) {
  std::vector<std::string> names;
  listThroughCard(desk, "A");
  const auto& items = desk.main.Lstdat.items();
  for (std::size_t at = 0; at < count; ++at) names.push_back(items[at * items.size() / count].text);
  return names;
}

std::size_t readRecord(dao::Recordset& cards, const std::string& name) {
  need(cards.Seek("=", name));
  std::size_t size = 0;
  for (int field = 0; field < cards.fieldCount(); ++field)
    size += cards.Fields(field).text().size();
  return size;
}

void measureLoad(Desk& desk) {
  std::vector<double> loads;
  std::vector<double> reads;
  std::size_t size = 0;
  for (const std::string& name : someNames(desk, 10 * rounds)) {
    loads.push_back(timed([&] {
      desk.station.SeciliHasta = name;
      desk.main.hastaoku();
      desk.main.Eskialanmain();
    }));
    if (desk.main.TxtEskiİsim.text() != name) fail("the card does not show " + name);
    reads.push_back(timed([&] { size += readRecord(desk.main.tablo(), name); }));
  }
  if (size == 0) fail("the records are empty");
  Line line = belowFrame("load of a card", median(loads));
  line.baseline = median(reads);
  print(line);
}

// The record alone: what a save cannot do without.
void addRecord(dao::Database& database, dao::Recordset& cards, const std::string& name) {
  auto transaction = database.beginTransaction();
  if (!transaction) fail(transaction.error().text());
  need(cards.AddNew());
  for (const shell::FieldRow& row : registry::cardFields()) {
    if (row.stored == shell::Stored::Text) need(cards.Fields(row.column).Set(std::string()));
  }
  need(cards.Fields("Name").Set(name));
  need(cards.Fields("Year of Birth").Set("1980"));
  need(cards.Fields("Company").Set("Kaya Nakliyat"));
  need(cards.Update());
  need(transaction->commit());
}

void saveThroughCard(Desk& desk, const std::string& name) {
  desk.main.Yeni();
  desk.main.Txtİsim.setText(name);
  desk.main.TxtDTarihi.setText("1980");
  desk.main.ComKurum.setText("Kaya Nakliyat");
  desk.main.kayityap();
}

void measureSave(Desk& desk) {
  std::vector<double> saves;
  std::vector<double> records;
  dao::Database& database = desk.station.stores.personal.database;
  for (std::size_t round = 0; round < 3 * rounds; ++round) {
    const std::string number = std::to_string(round);
    saves.push_back(timed([&] { saveThroughCard(desk, "Kayıt Işık " + number); }));
    records.push_back(
        timed([&] { addRecord(database, desk.main.tablo(), "Satır Işık " + number); }));
    if (desk.main.mnukaydet.enabled()) fail("the card was not saved");
  }
  print(atMost("save of a new card", median(saves), median(records), 1.5));
}

void measure(const std::string& folder) {
  Desk desk(folder);
  printHeadings();
  for (const char* typed : {"M", "A", "Me", "Fa", "Meh", "İsm"}) measureList(desk, typed);
  measureKeys(desk);
  measureLoad(desk);
  measureSave(desk);
}

}  // namespace

int main(int count, char** words) try {
  const auto patients = count > 1 ? text::wholeNumber(words[1]) : 100'000;
  // A practice of a few patients has nothing to measure.
  if (!patients || *patients < 1000) fail("usage: registry_bench [patients, 1000 or more]");
  const TemporaryFolder folder;
  tools::PracticeOptions options;
  options.patients = static_cast<std::size_t>(*patients);
  const double making = timed([&] { need(tools::makePractice(folder.path(), options)); });
  std::printf("%ld patients, made in %.1f s\n", *patients, making / 1000);
  measure(folder.path());
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}
