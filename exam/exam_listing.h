// All examinations of a patient, one after the other, as a document beside the practice's other
// documents.
#pragma once

#include <filesystem>
#include <string>

#include "platform/richtext/document.h"
#include "shell/station.h"

namespace exam {

class ExamListing {
 public:
  // The patient's name stands over the records, larger than the form's font.
  ExamListing(std::string patient, const forms::Font& font);

  // `heading` stands over the record: its date and who examined.
  void add(std::string_view heading, const richtext::Document& record);

  // Writes a new file in the folder of the documents; one that is there stays. Its path.
  [[nodiscard]] platform::Result<std::filesystem::path> write(const shell::Station& istasyon);

 private:
  void addLine(std::string_view text, int halfPoints);

  std::string patient_;
  richtext::CharFormat format_;
  std::vector<richtext::Paragraph> paragraphs_;
};

}  // namespace exam
