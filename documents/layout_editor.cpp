#include "documents/layout_editor.h"

#include <array>
#include <utility>

#include "documents/layout_record.h"
#include "platform/page/printer.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/font_record.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace documents {

namespace {

constexpr int usualPoints = 10;

// What stands out of a font's name and size, in the user's words.
std::string fontWords(shell::Station& istasyon, const forms::Font& font) {
  std::string words = font.name + (font.name.empty() ? "" : ", ") +
                      std::to_string(font.size > 0 ? font.size : usualPoints);
  if (font.bold) words += ", " + shell::metinbul(istasyon, "kalin");
  if (font.italic) words += ", " + shell::metinbul(istasyon, "italik");
  return words;
}

}  // namespace

LayoutEditor::LayoutEditor(shell::Station& istasyon, LayoutControls controls, PageLayout usual)
    : istasyon_(istasyon),
      controls_(std::move(controls)),
      layout_(std::move(usual)),
      contents_(layout_.items().size()) {
  controls_.TxtGrid.setVisible(false);
  for (std::size_t item = 0; item < layout_.items().size(); ++item) {
    rows_.push_back({item, Property::Left});
    rows_.push_back({item, Property::Top});
    if (layout_.items()[item].hasFont()) rows_.push_back({item, Property::Font});
    SheetItem& shown = *controls_.items[item];
    shown.Moved.connect([this, item](int left, int top) { move(item, left, top); });
    shown.Stepped.connect([this, item](int right, int down) { step(item, right, down); });
  }
  controls_.GrdÖzellik.Click.connect([this] { duzenle(); });
  controls_.GrdÖzellik.DblClick.connect([this] { duzenle(); });
  controls_.TxtGrid.LostFocus.connect([this] { bitir(); });
  controls_.TxtGrid.KeyPress.connect([this](char32_t& key) {
    if (key != forms::key_code::Enter) return;
    key = 0;
    controls_.GrdÖzellik.setFocus();
  });
  controls_.LstGörüntüle.ItemCheck.connect([this] { checked(); });
}

// --- The record

void LayoutEditor::Setkayitlarioku(int record) {
  if (const auto stored = shell::ayarKaydi(istasyon_, record)) yerlesimOku(layout_, *stored);
}

platform::Status LayoutEditor::setkayityaz(int record) {
  auto stored = shell::ayarKaydi(istasyon_, record);
  if (!stored) return stored.error();
  yerlesimYaz(layout_, *stored);
  return shell::ayarKaydiYaz(istasyon_, record, *stored);
}

// --- What is shown

void LayoutEditor::Gridkontrolleri() {
  const forms::Grid::Bulk bulk(controls_.GrdÖzellik);
  controls_.GrdÖzellik.setRows(static_cast<int>(rows_.size()));
  for (std::size_t row = 0; row < rows_.size(); ++row)
    controls_.GrdÖzellik.setTextMatrix(static_cast<int>(row), Title, rowTitle(rows_[row]));
  std::vector<forms::ListItem> names;
  for (const LayoutItem& item : layout_.items())
    names.push_back({.text = shell::metinbul(istasyon_, item.key), .selected = item.shown});
  controls_.LstGörüntüle.setItems(std::move(names));
  drawAll();
}

std::string LayoutEditor::rowTitle(const Row& row) const {
  constexpr std::array keys{"Sol", "ust", "yazitipi"};
  return shell::metinbul(istasyon_, layout_.items()[row.item].key) + "/" +
         shell::metinbul(istasyon_, keys[static_cast<std::size_t>(row.property)]);
}

std::string LayoutEditor::rowValue(const Row& row) const {
  const LayoutItem& item = layout_.items()[row.item];
  if (row.property == Property::Font) return fontWords(istasyon_, item.font);
  return text::plainText(unit::millimetres(row.property == Property::Left ? item.left : item.top));
}

void LayoutEditor::writeValues(std::size_t item) {
  const forms::Grid::Bulk bulk(controls_.GrdÖzellik);
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (rows_[row].item != item) continue;
    const int line = static_cast<int>(row);
    controls_.GrdÖzellik.setTextMatrix(line, Value, rowValue(rows_[row]));
    if (rows_[row].property != Property::Font) controls_.GrdÖzellik.setTextMatrix(line, Unit, "mm");
  }
}

void LayoutEditor::icerik(std::vector<std::string> contents) {
  contents_ = std::move(contents);
  contents_.resize(layout_.items().size());
  drawAll();
}

void LayoutEditor::drawAll() {
  for (std::size_t item = 0; item < layout_.items().size(); ++item) draw(item);
}

void LayoutEditor::draw(std::size_t item) {
  const LayoutItem& laid = layout_.items()[item];
  controls_.items[item]->setVisible(laid.shown);
  if (istasyon_.yazici != nullptr)
    controls_.items[item]->show(
        yerlesenOge(istasyon_.yazici->metrics(), laid, contents_[item], layout_.sheet()));
  writeValues(item);
}

page::Pages LayoutEditor::sayfalar() const {
  return yerlesimSayfalari(istasyon_.yazici->metrics(), layout_, contents_);
}

// --- What the user does

// An item that had to give way at the edge of the sheet stands where it is seen.
void LayoutEditor::move(std::size_t item, int left, int top) {
  layout_.move(item, left, top);
  draw(item);
  if (istasyon_.yazici == nullptr) return;
  const LayoutItem& laid = layout_.items()[item];
  const page::Rectangle& seen = controls_.items[item]->place();
  if (seen.x == unit::twips(laid.left) && seen.y == unit::twips(laid.top)) return;
  layout_.move(item, unit::fromTwips(seen.x), unit::fromTwips(seen.y));
  draw(item);
}

void LayoutEditor::step(std::size_t item, int right, int down) {
  const LayoutItem& laid = layout_.items()[item];
  move(item, unit::fromMillimetres(unit::millimetres(laid.left) + right),
       unit::fromMillimetres(unit::millimetres(laid.top) + down));
}

void LayoutEditor::checked() {
  for (std::size_t item = 0; item < layout_.items().size(); ++item) {
    layout_.setShown(item, controls_.LstGörüntüle.items()[item].selected);
    draw(item);
  }
}

// A refused number is put right before another row is edited.
void LayoutEditor::duzenle() {
  if (controls_.TxtGrid.visible()) return controls_.TxtGrid.setFocus();
  const int chosen = controls_.GrdÖzellik.Row();
  if (chosen < 0) return;
  const Row& row = rows_[static_cast<std::size_t>(chosen)];
  if (row.property == Property::Font) return chooseFont(row.item);
  edited_ = chosen;
  controls_.TxtGrid.setCaption(rowTitle(row));
  controls_.TxtGrid.setText(rowValue(row));
  controls_.TxtGrid.setVisible(true);
  controls_.TxtGrid.setFocus();
  controls_.TxtGrid.selectAll();
}

void LayoutEditor::bitir() {
  if (edited_ < 0 || refusing_) return;
  const Row& row = rows_[static_cast<std::size_t>(edited_)];
  const auto number = text::number(controls_.TxtGrid.text());
  if (number) {
    closeEdit();
    return take(row, *number);
  }
  refusing_ = true;
  istasyon_.bilgi(shell::metinbul(istasyon_, "msgsayiformati"));
  controls_.TxtGrid.setText(rowValue(row));
  controls_.TxtGrid.setFocus();
  controls_.TxtGrid.selectAll();
  refusing_ = false;
}

void LayoutEditor::vazgec() {
  if (edited_ < 0) return;
  closeEdit();
  controls_.GrdÖzellik.setFocus();
}

void LayoutEditor::closeEdit() {
  edited_ = -1;
  controls_.TxtGrid.setVisible(false);
}

void LayoutEditor::take(const Row& row, double millimetres) {
  const LayoutItem& laid = layout_.items()[row.item];
  const int place = unit::fromMillimetres(millimetres);
  row.property == Property::Left ? move(row.item, place, laid.top)
                                 : move(row.item, laid.left, place);
}

void LayoutEditor::chooseFont(std::size_t item) {
  const auto chosen = istasyon_.host.chooseFont(layout_.items()[item].font);
  if (!chosen) return;
  layout_.setFont(item, *chosen);
  draw(item);
  tellUnkept();
}

void LayoutEditor::tellUnkept() {
  std::string lines;
  for (const std::size_t item : unkeptFonts(layout_)) {
    const LayoutItem& laid = layout_.items()[item];
    lines += "\n" + shell::metinbul(istasyon_, laid.key) + ": " + laid.font.name;
  }
  if (!lines.empty()) istasyon_.bilgi(phrase(istasyon_, shell::Phrase::FontsNotKept) + lines);
}

}  // namespace documents
