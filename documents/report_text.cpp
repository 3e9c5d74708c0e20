#include "documents/report_text.h"

namespace documents {

namespace {

constexpr int usualPoints = 10;
constexpr int halfPointsPerPoint = 2;

}  // namespace

page::Font sayfaYazitipi(const forms::Font& font) {
  page::Font printed{.halfPoints = (font.size > 0 ? font.size : usualPoints) * halfPointsPerPoint,
                     .bold = font.bold,
                     .italic = font.italic,
                     .underline = font.underline,
                     .strike = font.strikethrough,
                     .colour = font.colour};
  if (!font.name.empty()) printed.font = font.name;
  return printed;
}

void ReportText::secyazitipi() {
  now_ = own_;
  now_.bold = true;
}

void ReportText::yaz(std::string_view text) {
  document_.append(richtext::Document::fromText(text, now_));
}

void ReportText::alan(std::string_view caption, std::string_view value) {
  if (value.empty()) return;
  secyazitipi();
  yaz(caption);
  yaz(" : ");
  yazitipiayarla();
  yaz(value);
  yaz("\n");
}

}  // namespace documents
