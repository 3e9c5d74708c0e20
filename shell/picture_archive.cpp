#include "shell/picture_archive.h"

#include <algorithm>

#include "platform/forms/text_control.h"

namespace shell {

namespace {

// A field that the screen lacks is null.
using Fields = std::array<forms::TextControl*, pictureCount>;

Fields fieldsOf(const forms::Form& owner) {
  Fields fields{};
  for (std::size_t i = 0; i < pictureCount; ++i) {
    fields[i] = dynamic_cast<forms::TextControl*>(owner.find("txtp" + std::to_string(i + 1)));
  }
  return fields;
}

std::string titleOf(const PictureRecord& record) {
  std::string title(record.entry);
  std::erase(title, '&');
  const std::string name = RecordScreen::sisim(record.isim);
  for (const std::string_view part : {record.tarih, std::string_view(name)}) {
    if (!part.empty()) title.append(" - ").append(part);
  }
  return title;
}

// The shortest field decides, since a picture may go into any of them.
std::size_t longestPath(const Fields& fields) {
  std::size_t longest = 0;
  for (const forms::TextControl* field : fields) {
    if (field == nullptr || field->maxLength() == 0) continue;
    longest = longest == 0 ? field->maxLength() : std::min(longest, field->maxLength());
  }
  return longest;
}

}  // namespace

void resimArsivi(Station& istasyon, RecordScreen& owner, const PictureRecord& record) {
  const Fields fields = fieldsOf(owner);
  istasyon.Resimler = {.yollar = {},
                       .baslik = titleOf(record),
                       .isim = RecordScreen::sisim(record.isim),
                       .tarih = std::string(record.tarih),
                       .enUzun = longestPath(fields)};
  for (std::size_t i = 0; i < pictureCount; ++i) {
    if (fields[i] != nullptr) istasyon.Resimler.yollar[i] = fields[i]->text();
  }
  istasyon.ekranAc(pictureScreen, record.entry);
  for (std::size_t i = 0; i < pictureCount; ++i) {
    if (fields[i] != nullptr) fields[i]->setText(istasyon.Resimler.yollar[i]);
  }
  owner.ResimVar();
}

}  // namespace shell
