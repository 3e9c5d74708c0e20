#include "tools/message_maker.h"

#include "platform/files/folders.h"
#include "platform/files/message_file.h"
#include "platform/files/name_list.h"

namespace tools {

namespace {

using platform::Status;

struct Note {
  std::string_view sender;
  std::string_view addressee;
  int daysAgo;
  int minuteOfDay;
  std::int16_t isNew;
  std::string_view subject;
  std::string_view text;
};

constexpr std::string_view desk = "Sekreter";
constexpr std::string_view laboratory = "Laboratuvar";
constexpr Note notes[] = {
    {desk, messageReader, 3, 545, 0, "Perşembe randevuları",
     "Perşembe öğleden sonra üç hasta randevusunu cumaya aldı."},
    {laboratory, messageReader, 1, 690, 0, "Kan şekeri sonucu",
     "Dün alınan örnekte hemoliz vardı.\r\nÖrnek yarın sabah yeniden alınacak."},
    {messageReader, desk, 1, 700, 1, "Re: Kan şekeri sonucu", "Hastayı sabah 9'a çağırır mısınız?"},
    {laboratory, messageReader, 0, 520, 1, "Sonuçlar hazır",
     "Bugünün biyokimya sonuçları girildi. İki hastada potasyum yüksek, işaretli."},
    {desk, messageReader, 0, 555, 1, "Bekleyen hasta",
     "Işıl Hanım kontrol için geldi, bekleme odasında."},
};

std::string timeOf(const text::DateTime& day, const Note& note) {
  text::DateTime sent = text::addDays(day, -note.daysAgo);
  sent.seconds = note.minuteOfDay * 60;
  return text::shortDateTime(sent);
}

files::MessageRecord recordOf(const text::DateTime& day, const Note& note) {
  files::MessageRecord record;
  record.sender = note.sender;
  record.addressee = note.addressee;
  record.subject = note.subject;
  record.text = note.text;
  record.sent = timeOf(day, note);
  record.isNew = note.isNew;
  record.isRead = note.isNew == 1 ? 0 : 1;
  return record;
}

}  // namespace

Status writeMessages(const std::string& folder, const text::DateTime& day) {
  for (const Note& note : notes) {
    const Status sent =
        files::sendMessage(files::programPath(folder, "Data/message.dat"), recordOf(day, note));
    if (!sent) return sent;
  }
  for (const std::string_view name : {messageReader, desk, laboratory}) {
    if (Status added = files::addName(files::programPath(folder, "Data/List.dat"), name); !added)
      return added;
  }
  return {};
}

}  // namespace tools
