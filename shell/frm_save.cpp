#include "shell/frm_save.h"

#include <algorithm>

#include "platform/files/places.h"
#include "platform/status/system_fault.h"
#include "shell/backup.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/file_words.h"
#include "shell/text_lookup.h"
#include "stores/backup.h"
#include "stores/practice_files.h"

namespace shell {

namespace {

namespace fs = std::filesystem;

constexpr auto rootPlace = "/";

bool okunur(const fs::path& folder) {
  std::error_code refused;
  const fs::directory_iterator entries(folder, refused);
  return !refused;
}

std::string klasorOlmadi(Station& istasyon, const std::error_code& error) {
  return phrase(istasyon, Phrase::FolderRefused) +
         nedeni(istasyon, {platform::faultOf(error.value()), error.message()});
}

}  // namespace

FrmSave::FrmSave(Station& station) : Form("FrmSave"), istasyon(station) {
  tbToolBar.addButton("dosyaon", "dosyaon");
  tbToolBar.addButton("dosyaac", "dosyaac");
  tbToolBar.addButton("delete", "Delete");
  tbToolBar.ButtonClick.connect([this](std::string_view key) {
    if (key == "dosyaon") klasoreGec(klasor_.parent_path());
    if (key == "dosyaac") klasorYarat();
    if (key == "delete") klasorSil();
  });
  Drive1.Click.connect([this] { Drive1_Change(); });
  Dir1.DblClick.connect([this] {
    if (Dir1.listIndex() >= 0) klasoreGec(secilen());
  });
  ButYedekle.Click.connect([this] { ButYedekle_Click(); });
  buttamam.Click.connect([this] { buttamam_Click(); });
}

void FrmSave::Load() {
  basliklariyaz(istasyon, *this);
  buttamam.setCaption(phrase(istasyon, Phrase::CloseWindow));
  LDosyalar.setCaption("Personal.mdb\nSanavel.mdb");
  std::vector<std::string> places;
  for (const fs::path& place : files::places()) places.push_back(place.string());
  Drive1.setItems(std::move(places));
  const std::string remembered = istasyon.ayar(backupFolderSetting);
  const bool open = !remembered.empty() && klasoreGec(remembered);
  if (!open && !klasoreGec(files::home())) klasoreGec(rootPlace);
}

void FrmSave::Drive1_Change() {
  const std::string place = Drive1.text();
  if (klasoreGec(place)) return;
  istasyon.bilgi(place + metinbul(istasyon, "msherisilemez"));
  klasoreGec(rootPlace);
}

// The innermost place that the open folder lies in.
void FrmSave::yeriGoster() {
  std::string shown;
  for (const std::string& place : Drive1.items()) {
    const bool inside = ayracla(klasor_.string()).starts_with(ayracla(place));
    if (inside && place.size() > shown.size()) shown = place;
  }
  Drive1.showText(shown);
}

bool FrmSave::klasoreGec(const fs::path& folder) {
  std::error_code error;
  fs::path opened = fs::weakly_canonical(fs::absolute(folder, error), error);
  if (error || !okunur(opened)) return false;
  klasor_ = std::move(opened);
  Dir1_Change();
  return true;
}

void FrmSave::Dir1_Change() {
  LDizin.setCaption(klasor_.string());
  yeriGoster();
  Dir1.clear();
  std::vector<std::string> names;
  for (const fs::path& name : files::foldersIn(klasor_)) names.push_back(name.string());
  Dir1.appendItems(std::move(names));
  const bool data = stores::isDataFolder(istasyon.UygYolu, klasor_);
  ButYedekle.setEnabled(!data);
  Lbilgi.setCaption(phrase(istasyon, data ? Phrase::BackupNotIntoData : Phrase::BackupHint));
  tbToolBar.setButtonEnabled("dosyaon", klasor_.has_relative_path());
  sonYedegiYaz();
}

void FrmSave::sonYedegiYaz() {
  std::string lines;
  for (const stores::StoreKind& kind : stores::storeKinds) {
    const auto state = stores::stateOf(klasor_ / kind.file);
    if (!state) continue;
    if (!lines.empty()) lines += "\n";
    lines += std::string(kind.file) + "   " + tarihSaat(*state) + "   " + boyut(state->bytes);
  }
  const auto files = stores::practiceFiles(klasor_ / stores::backupFilesFolder);
  if (!files.empty()) {
    std::int64_t bytes = 0;
    for (const stores::PracticeFile& file : files) bytes += file.bytes;
    if (!lines.empty()) lines += "\n";
    lines += phrase(istasyon, Phrase::FilesInBackup) + std::to_string(files.size()) + "   " +
             boyut(static_cast<std::uintmax_t>(bytes));
  }
  Lsonyedek.setCaption(lines.empty() ? phrase(istasyon, Phrase::NoBackupYet) : lines);
}

fs::path FrmSave::secilen() const {
  return Dir1.listIndex() < 0 ? klasor_ : klasor_ / Dir1.text();
}

void FrmSave::klasorYarat() {
  const std::string name = istasyon.host.inputBox(phrase(istasyon, Phrase::AskFolderName),
                                                  tbToolBar.button("dosyaac")->toolTip, "");
  if (name.empty()) return;
  std::error_code error;
  const bool below = name.find('/') == name.npos;
  const bool made = below && fs::create_directory(klasor_ / name, error);
  if (made) {
    klasoreGec(klasor_ / name);
  } else {
    istasyon.bilgi(error ? klasorOlmadi(istasyon, error)
                         : phrase(istasyon, Phrase::FolderRefused) + name);
  }
}

// The chosen folder, else the one that is open; never more than an empty one.
void FrmSave::klasorSil() {
  const fs::path folder = secilen();
  if (!istasyon.confirmLoss(folder.filename().string() + phrase(istasyon, Phrase::AskRemoval)))
    return;
  std::error_code error;
  const bool empty = fs::is_empty(folder, error);
  if (!error && !empty) return istasyon.bilgi(phrase(istasyon, Phrase::FolderNotEmpty));
  if (!error) fs::remove(folder, error);
  if (error) return istasyon.bilgi(klasorOlmadi(istasyon, error));
  klasoreGec(folder.parent_path());
}

void FrmSave::ButYedekle_Click() {
  yedekle(istasyon, klasor_.string());
  sonYedegiYaz();
}

void FrmSave::buttamam_Click() {
  istasyon.ayarYaz(backupFolderSetting, ayracla(klasor_.string()));
  istasyon.host.close(*this);
}

}  // namespace shell
