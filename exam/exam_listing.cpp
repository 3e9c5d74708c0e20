#include "exam/exam_listing.h"

#include <algorithm>

#include "platform/files/atomic_write.h"
#include "platform/files/folders.h"
#include "platform/richtext/rtf_writer.h"
#include "platform/text/date.h"

namespace exam {

namespace {

constexpr auto folder = "Documents/Diseases";
constexpr int usualSize = 10;
constexpr int largerBy = 4;

// What no file system minds.
std::string fileName(std::string name) {
  constexpr std::string_view forbidden = "/\\:*?\"<>|";
  std::ranges::replace_if(
      name, [&](char c) { return forbidden.find(c) != forbidden.npos || (c >= 0 && c < ' '); },
      '_');
  return name;
}

std::filesystem::path freePath(const std::filesystem::path& parent, const std::string& name) {
  std::error_code ignored;
  for (int copy = 1;; ++copy) {
    const std::string number = copy == 1 ? "" : " (" + std::to_string(copy) + ")";
    const std::filesystem::path path = parent / (name + number + ".rtf");
    if (!std::filesystem::exists(path, ignored)) return path;
  }
}

}  // namespace

ExamListing::ExamListing(std::string patient, const forms::Font& font)
    : patient_(std::move(patient)) {
  if (!font.name.empty()) format_.font = font.name;
  format_.halfPoints = 2 * (font.size > 0 ? font.size : usualSize);
  format_.bold = true;
  addLine(patient_, format_.halfPoints + 2 * largerBy);
  addLine({}, format_.halfPoints);
}

void ExamListing::addLine(std::string_view text, int halfPoints) {
  richtext::CharFormat format = format_;
  format.halfPoints = halfPoints;
  paragraphs_.push_back({{{std::string(text), format}}, {}});
}

void ExamListing::add(std::string_view heading, const richtext::Document& record) {
  addLine(heading, format_.halfPoints);
  const auto& lines = record.paragraphs();
  paragraphs_.insert(paragraphs_.end(), lines.begin(), lines.end());
}

platform::Result<std::filesystem::path> ExamListing::write(const shell::Station& istasyon) {
  const std::filesystem::path parent = istasyon.dosya(folder);
  const platform::Status made = files::createFolders(parent);
  if (!made) return std::unexpected(made);
  const std::string day = text::isoText(istasyon.clock.today());
  std::filesystem::path path = freePath(parent, fileName(patient_ + " " + day));
  const platform::Status written =
      files::writeAtomically(path, richtext::writeRtf(richtext::Document(std::move(paragraphs_))));
  if (!written) return std::unexpected(written);
  return path;
}

}  // namespace exam
