// The sheets of a report while they are laid out: what its template puts around the body.
#pragma once

#include "documents/report_page.h"
#include "documents/templates.h"
#include "platform/page/device.h"

namespace documents {

// The report outlives the sheets; the station has a printer.
class ReportSheet {
 public:
  ReportSheet(shell::Station& istasyon, const Report& report);

  [[nodiscard]] page::Device& device() { return device_; }

  // What stands above the body, and two blank lines.
  void head();
  void turnPage(HeadingOn heading);
  // A report that is signed keeps room for its signature on the page.
  [[nodiscard]] int bodyEnd() const;
  void sign();
  // The line that says that the body goes on beyond its page.
  [[nodiscard]] int cutNoteHeight() const;
  void noteCut();

 private:
  [[nodiscard]] page::Font noteFont() const;
  void startText(int y);
  void nameLine();

  shell::Station& istasyon_;
  const Report& report_;
  const Template& layout_;
  page::Device device_;
};

}  // namespace documents
