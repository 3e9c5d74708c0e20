#include "documents/frm_printer.h"

#include <algorithm>
#include <filesystem>

#include "shell/captions.h"
#include "shell/phrases.h"

namespace documents {

namespace {

// Settings: the printer that was used last, empty for the file, and the folder of the files.
constexpr std::string_view printerSetting = "printer";
constexpr std::string_view folderSetting = "pdf folder";
constexpr std::string_view ending = ".pdf";

// A title may hold what no file name can.
std::string fileName(std::string title) {
  std::ranges::replace_if(
      title,
      [](char letter) {
        return std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos ||
               static_cast<unsigned char>(letter) < ' ';
      },
      '-');
  return (title.empty() ? "-" : title) + std::string(ending);
}

}  // namespace

FrmPrinter::FrmPrinter(shell::Station& station, std::string title)
    : Form("frmprinter"), istasyon(station), title_(std::move(title)) {
  buttamam.setDefault();
  buttamam.Click.connect([this] { sec(); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmPrinter::Load() {
  shell::basliklariyaz(istasyon, *this);
  std::vector<std::string> names;
  if (istasyon.yazici != nullptr) names = istasyon.yazici->printers();
  const std::string pdf = phrase(istasyon, shell::Phrase::SaveAsPdf);
  const std::string usual = names.empty() ? pdf : names.front();
  names.push_back(pdf);
  ComYazıcı.setItems(names);
  const std::string last = istasyon.ayar(printerSetting, usual);
  const int row = ComYazıcı.rowOf(last.empty() ? pdf : last);
  ComYazıcı.setListIndex(row < 0 ? 0 : row);
}

void FrmPrinter::sec() {
  const bool file = ComYazıcı.listIndex() + 1 == static_cast<int>(ComYazıcı.items().size());
  const auto chosen = file ? dosyaSor() : page::Target{.printer = ComYazıcı.text(), .file = {}};
  if (!chosen) return;
  istasyon.ayarYaz(printerSetting, chosen->printer);
  hedef_ = chosen;
  istasyon.host.close(*this);
}

std::optional<page::Target> FrmPrinter::dosyaSor() {
  const std::filesystem::path folder(istasyon.ayar(folderSetting));
  auto chosen = istasyon.host.saveFile({.title = ComYazıcı.text(),
                                        .filters = {"PDF (*.pdf)"},
                                        .folder = (folder / fileName(title_)).string()});
  if (!chosen) return std::nullopt;
  std::filesystem::path file(*chosen);
  if (!file.has_extension()) file += ending;
  istasyon.ayarYaz(folderSetting, file.parent_path().string());
  return page::Target{.printer = {}, .file = file.string()};
}

}  // namespace documents
