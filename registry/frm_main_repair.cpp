// Maintenance of the cards: all of them saved anew, and cards for pregnancies that have none.
#include "platform/text/utf8.h"
#include "registry/card_batches.h"
#include "registry/card_fields.h"
#include "registry/frm_main.h"
#include "shell/age.h"
#include "shell/fault_words.h"
#include "shell/frm_progress.h"
#include "shell/phrases.h"
#include "shell/restore.h"

namespace registry {

namespace {

// Short enough for the window to answer, long enough for the durable write to be a small part.
constexpr std::size_t cardsPerBatch = 128;
constexpr auto pregnantBirthYear = "1986";
constexpr auto pregnantSex = "0";

using Names = std::vector<std::string>;

// The cards behind the one of that name, in the order of names.
Names cardsAfter(dao::Recordset& cards, const std::string& name) {
  Names next;
  bool found = cards.Seek(">", name).ok() && !cards.NoMatch();
  for (; found && next.size() < cardsPerBatch; found = cards.MoveNext().ok() && !cards.Eof())
    next.push_back(cards.Fields("Name").text());
  return next;
}

// What Seek does not find in the card table; a table that cannot be read has a card for everybody.
bool hasCard(dao::Recordset& cards, const std::string& name) {
  return !cards.Seek("=", name) || !cards.NoMatch();
}

dao::Result<Names> pregnanciesWithoutCard(stores::Stores& stores) {
  auto rows = stores.clinical.database.OpenRecordset(
      "SELECT DISTINCT [Name] FROM [Gravid] WHERE [Name] <> ''");
  if (!rows) return std::unexpected(rows.error());
  Names names;
  for (; !rows->Eof(); rows->MoveNext().ignore()) {
    std::string name = text::trim(rows->Fields(0).text());
    if (!name.empty() && !hasCard(stores.personal.IDCard, name)) names.push_back(std::move(name));
  }
  return names;
}

dao::Status addPregnant(dao::Recordset& cards, const std::string& name) {
  if (hasCard(cards, name)) return {};
  dao::Status status = cards.AddNew();
  for (const shell::FieldRow& row : cardFields()) {
    if (status && row.stored == shell::Stored::Text) status = cards.Fields(row.column).Set("");
  }
  if (status) status = cards.Fields("Name").Set(name);
  if (status) status = cards.Fields("Year of Birth").Set(pregnantBirthYear);
  if (status) status = cards.Fields("Sex").Set(pregnantSex);
  if (status) status = cards.Update();
  if (!status) cards.CancelUpdate();
  return status;
}

struct CardWork {
  shell::Phrase title;
  shell::Phrase doneWord;
  std::int64_t total;
  std::function<Names()> next = {};  // the next batch; none ends the work
  std::function<void()> batchDone = [] {};
};

void tell(shell::Station& istasyon, const CardWork& work, const CardBatches& batches,
          const dao::Status& status) {
  std::string told = phrase(istasyon, work.doneWord) + std::to_string(batches.written());
  if (batches.refused() > 0)
    told +=
        "\n" + phrase(istasyon, shell::Phrase::CardsPassedOver) + std::to_string(batches.refused());
  if (!status)
    told += "\n" + phrase(istasyon, shell::Phrase::StoreFailed) + shell::nedeni(istasyon, status);
  istasyon.bilgi(told);
}

// Batch by batch behind the progress screen; says at the end what became of the cards.
void run(shell::Station& istasyon, const CardWork& work, CardBatches& batches) {
  dao::Status status;
  std::int64_t done = 0;
  const auto slice = [&]() -> std::optional<std::int64_t> {
    const Names names = work.next();
    if (names.empty()) return std::nullopt;
    status = batches.write(names);
    work.batchDone();
    if (!status) return std::nullopt;
    return done += static_cast<std::int64_t>(names.size());
  };
  surdurerekYap(istasyon, {phrase(istasyon, work.title), work.total, slice});
  tell(istasyon, work, batches, status);
}

dao::Status refusal(const std::string& name) {
  return {dao::Fault::WrongType, name};
}

}  // namespace

void FrmMain::Tamir2() {
  if (!kayitkontrol()) return;
  CardBatches batches(istasyon.stores.personal.database,
                      [this](const std::string& name) { return kartiYenile(name); });
  std::string last;
  CardWork work{.title = shell::Phrase::SaveAllCards,
                .doneWord = shell::Phrase::CardsSaved,
                .total = tablo().RecordCount()};
  work.next = [&] {
    Names names = cardsAfter(tablo(), last);
    if (!names.empty()) last = names.back();
    return names;
  };
  // No card is drawn: the screen is empty whenever the windows have their turn.
  work.batchDone = [this] {
    alanlaribosalt();
    Eskialanmain();
  };
  run(istasyon, work, batches);
  Listeleriyaz();
}

void FrmMain::mnugeriyukle_Click() {
  if (!kayitkontrol()) return;
  listeyiKapat();
  if (!shell::mnugeriyukle_Click(istasyon)) return;
  Yeni();
  Listeleriyaz();
  Eskialanmain();
  gunlukListele();
  const bool anyone = !tablo().empty();
  yonEtkin(Direction::Back, anyone);
  yonEtkin(Direction::Forward, anyone);
}

void FrmMain::Command1() {
  const auto missing = pregnanciesWithoutCard(istasyon.stores);
  if (!missing) return shell::hataSoyle(istasyon, missing.error());
  CardBatches batches(istasyon.stores.personal.database,
                      [this](const std::string& name) { return addPregnant(tablo(), name); });
  std::size_t taken = 0;
  CardWork work{.title = shell::Phrase::CardsFromPregnancies,
                .doneWord = shell::Phrase::CardsAdded,
                .total = static_cast<std::int64_t>(missing->size())};
  work.next = [&] {
    const auto begin = missing->begin() + static_cast<std::ptrdiff_t>(taken);
    taken = std::min(missing->size(), taken + cardsPerBatch);
    return Names(begin, missing->begin() + static_cast<std::ptrdiff_t>(taken));
  };
  run(istasyon, work, batches);
}

// Loads the card and stores it, hidden or not: it never shows, since the screen is cleared before
// the window draws. Whoever has the patient open loses nothing by it: what is written was read in
// the same transaction. Refused where the save would lose something: a name that stands under
// another key when its blanks are cut off, a birth field that is neither date nor year, a date
// beside a year.
dao::Status FrmMain::kartiYenile(const std::string& name) {
  const dao::Status found = tablo().Seek("=", name);
  if (!found) return found;
  if (tablo().NoMatch()) return {};  // deleted meanwhile
  hastayiYukle();
  Txtİsim.setText(name);
  TxtEskiİsim.setText(name);
  const dao::Status sought = tablo().Seek("=", text::trim(name));
  if (!sought) return sought;
  if (tablo().NoMatch() || tablo().Fields("Name").text() != name || !dogumSaklanir())
    return refusal(name);
  const dao::Status status = satiriYaz(name);
  if (status) listelereEkle();
  return status;
}

bool FrmMain::dogumSaklanir() {
  const bool both =
      !tablo().Fields("Date of Birth").isNull() && !tablo().Fields("Year of Birth").text().empty();
  if (both) return false;
  const std::string birth = text::trim(TxtDTarihi.text());
  return birth.empty() || shell::yilMi(birth) || text::parseDate(birth, istasyon.clock.today());
}

}  // namespace registry
