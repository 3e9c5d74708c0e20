// The body of a printed record while it is composed: captions in bold, values in the form's own
// weight.
#pragma once

#include <string_view>

#include "platform/forms/font.h"
#include "platform/page/page.h"
#include "platform/richtext/document.h"

namespace documents {

// What a form's font is on paper; a form without one of its own prints in ten points.
[[nodiscard]] page::Font sayfaYazitipi(const forms::Font& font);

class ReportText {
 public:
  explicit ReportText(const forms::Font& font) : own_(sayfaYazitipi(font)), now_(own_) {}

  // What is written next is a heading, and is body text.
  void secyazitipi();
  void yazitipiayarla() { now_ = own_; }
  // Line ends in the text end lines.
  void yaz(std::string_view text);
  // "caption : value" on a line of its own; nothing for an empty value.
  void alan(std::string_view caption, std::string_view value);

  [[nodiscard]] const richtext::Document& document() const { return document_; }
  [[nodiscard]] bool empty() const { return document_.empty(); }

 private:
  page::Font own_;
  page::Font now_;
  richtext::Document document_;
};

}  // namespace documents
