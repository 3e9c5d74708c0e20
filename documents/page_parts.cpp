#include "documents/page_parts.h"

#include <algorithm>

#include "documents/report_text.h"
#include "documents/templates.h"
#include "platform/page/text_flow.h"
#include "platform/text/number.h"
#include "shell/font_record.h"
#include "shell/letterhead.h"

namespace documents {

namespace {

constexpr std::string_view marginSetting = "left margin";
constexpr std::string_view usualMargin = "567";  // a centimetre
constexpr double widestMargin = 4000;
constexpr std::string_view patternScreen = "frmpattern";

// A heading that would leave the sheet, or run into the line of the name, is made smaller.
page::Size fittedHeading(page::Size picture, page::Size room) {
  if (picture.width <= 0 || picture.height <= 0) return {};
  const double factor = std::min({1.0, static_cast<double>(room.width) / picture.width,
                                  static_cast<double>(room.height) / picture.height});
  return {std::max(1, static_cast<int>(picture.width * factor)),
          std::max(1, static_cast<int>(picture.height * factor))};
}

// Paints the icon in the middle of the bitmap's width, or the bitmap where there is no icon, and
// answers the painted height.
int paintHeading(const shell::Station& istasyon, page::Device& device) {
  const std::string bitmapFile = istasyon.dosya(shell::letterhead::picture);
  const std::string iconFile = istasyon.dosya(shell::letterhead::icon);
  const auto bitmap = device.metrics().pictureSize(bitmapFile);
  const auto icon = device.metrics().pictureSize(iconFile);
  if (!bitmap && !icon) return 0;
  const int margin = solMarj(istasyon);
  const page::Size room{device.width() - 2 * margin, place::nameLine - place::headingTop};
  const page::Size painted = fittedHeading(icon ? *icon : *bitmap, room);
  const int remembered = bitmap ? fittedHeading(*bitmap, room).width : painted.width;
  const int indent = std::max(0, (remembered - painted.width) / 2);
  device.paintPicture(icon ? iconFile : bitmapFile, margin + indent, place::headingTop, painted);
  return painted.height;
}

page::Font signatureFont(const shell::Station& istasyon, const page::Device& device) {
  const auto stored = shell::ayarKaydi(istasyon, shell::font_record::signature);
  const bool chosen = stored && stored->owner == patternScreen;
  return chosen ? sayfaYazitipi(shell::fontOf(*stored)) : device.font;
}

// The font of the device while something else is printed, and back.
class FontKept {
 public:
  explicit FontKept(page::Device& device) : device_(device), font_(device.font) {}
  FontKept(const FontKept&) = delete;
  FontKept& operator=(const FontKept&) = delete;
  ~FontKept() { device_.font = font_; }

 private:
  page::Device& device_;
  page::Font font_;
};

}  // namespace

int solMarj(const shell::Station& istasyon) {
  const double stored = text::Val(istasyon.ayar(marginSetting, usualMargin));
  return static_cast<int>(std::clamp(stored, 0.0, widestMargin));
}

void YaziciFontuAyarla(page::Device& device, const forms::Font& font) {
  device.font = sayfaYazitipi(font);
}

void BaslikYazici(const shell::Station& istasyon, page::Device& device) {
  const FontKept font(device);
  const int left = device.left;
  device.left = solMarj(istasyon) + place::headingTextIndent;
  device.y = paintHeading(istasyon, device) + place::headingTop;
  const auto heading = shell::basligiOku(istasyon);
  if (heading && !heading->empty())
    metniYaz(device, *heading, sayfaSonu(device), [] { return false; });
  device.left = left;
  device.x = left;
}

void metniYaz(page::Device& device, const richtext::Document& text, int bottom,
              const std::function<bool()>& full) {
  // As wide a margin on the right, but never less than what printers cannot reach.
  const int width = device.width() - device.left - std::max(device.left, place::textTop);
  metniYaz(device, text, TextRoom{width, bottom}, full);
}

void metniYaz(page::Device& device, const richtext::Document& text, TextRoom room,
              const std::function<bool()>& full) {
  const FontKept font(device);
  page::eachLine(device.metrics(), text, std::max(room.width, 1), [&](const page::FlowLine& line) {
    if (device.y + line.height.line > room.bottom && !full()) return false;
    page::printLine(device, line);
    return true;
  });
}

void imzaYaz(const shell::Station& istasyon, page::Device& device, std::string_view imza) {
  const FontKept kept(device);
  device.font = signatureFont(istasyon, device);
  device.y += place::signatureGap;
  const richtext::Document lines = richtext::Document::fromText(imza);
  for (const richtext::Paragraph& paragraph : lines.paragraphs()) {
    const std::string& line = paragraph.runs.front().text;
    device.x = std::max(0, place::signatureRight - device.textWidth(line));
    device.print(line);
  }
}

int imzaBoyu(const shell::Station& istasyon, const page::Device& device, std::string_view imza) {
  const page::Font font = signatureFont(istasyon, device);
  const auto lines = richtext::Document::fromText(imza).paragraphs().size();
  return place::signatureGap + static_cast<int>(lines) * device.metrics().height(font).line;
}

int sayfaSonu(const page::Device& device) {
  // As much stays free at the foot as above the text at the top.
  return device.height() - place::textTop;
}

}  // namespace documents
