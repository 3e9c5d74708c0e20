#include "images/picture_words.h"

#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace images {

namespace {

using shell::Phrase;

Phrase phraseOf(PictureFault fault) {
  switch (fault) {
    case PictureFault::Missing:
      return Phrase::PictureMissing;
    case PictureFault::Folder:
      return Phrase::PictureFolder;
    case PictureFault::Empty:
      return Phrase::PictureEmpty;
    case PictureFault::Refused:
      return Phrase::PictureRefused;
    case PictureFault::NotAPicture:
      return Phrase::NotAPicture;
    case PictureFault::TooLarge:
      return Phrase::PictureTooLarge;
    case PictureFault::Damaged:
      break;
  }
  return Phrase::PictureDamaged;
}

}  // namespace

std::string_view fileName(std::string_view path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

std::string wordsFor(shell::Station& istasyon, std::size_t number, const ArchivePicture& picture) {
  std::string words = shell::metinbul(istasyon, "Resim") + " " + std::to_string(number);
  if (picture.path().empty()) return words;
  words.append(": ").append(fileName(picture.path()));
  if (picture.fault()) words.append("\n").append(phrase(istasyon, phraseOf(*picture.fault())));
  return words;
}

std::string percentText(shell::Station& istasyon, int percent) {
  const std::string number = std::to_string(percent);
  return istasyon.turkce() ? "%" + number : number + "%";
}

}  // namespace images
