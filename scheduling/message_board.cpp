#include "scheduling/message_board.h"

#include <algorithm>

#include "platform/files/name_list.h"
#include "platform/text/fold.h"
#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"

namespace scheduling {

using files::Message;
using files::MessageRecord;
using shell::Station;

namespace {

constexpr std::string_view addressSetting = "msg address";
constexpr std::string_view file = "Data/message.dat";
constexpr std::string_view namesFile = "Data/List.dat";

bool isOn(std::string_view setting) {
  return setting == "1" || text::equalsNoCase(setting, "True");
}

// A Turkish name is typed with and without its dots.
bool isSamePerson(std::string_view one, std::string_view other) {
  return text::upper(one) == text::upper(other) ||
         text::upperTurkish(one) == text::upperTurkish(other);
}

bool isOfDay(const MessageRecord& record, const text::DateTime& day) {
  const auto sent = text::parseDate(record.sent, day);
  return sent && sent->day == day.day;
}

}  // namespace

const MessageViewRow& secilenGorunum(const Station& istasyon) {
  const auto* const chosen = std::ranges::find_if(messageViews, [&](const MessageViewRow& row) {
    return isOn(istasyon.ayar(row.setting, row.missing));
  });
  return chosen == messageViews.end() ? messageViews.front() : *chosen;
}

void gorunumSakla(Station& istasyon, MessageView view) {
  for (const MessageViewRow& row : messageViews)
    istasyon.ayarYaz(row.setting, row.view == view ? "True" : "False");
}

std::string mesajDosyasi(const Station& istasyon) {
  return istasyon.dosya(file);
}

std::string isimDosyasi(const Station& istasyon) {
  return istasyon.dosya(namesFile);
}

std::string mesajAdresi(const Station& istasyon) {
  return text::trim(istasyon.ayar(addressSetting));
}

bool mesajAdresiSor(Station& istasyon, std::string_view prompt, std::string_view title) {
  const std::string given = istasyon.host.inputBox(prompt, title, mesajAdresi(istasyon));
  const std::string name = text::trim(given);
  if (name.empty()) return false;
  istasyon.ayarYaz(addressSetting, name);
  return true;
}

void mesajlarOkunurMu(Station& istasyon) {
  const auto tell = [&](const std::string& path, shell::Phrase words, auto read) {
    std::error_code missing;
    if (!std::filesystem::exists(std::filesystem::symlink_status(path, missing))) return;
    if (const auto content = read(path); !content)
      shell::hataSoyle(istasyon, words, content.error());
  };
  tell(mesajDosyasi(istasyon), shell::Phrase::MessagesNotRead, files::readMessages);
  tell(isimDosyasi(istasyon), shell::Phrase::NamesNotRead, files::readNames);
}

bool gorunur(const MessageRecord& record, std::string_view address, MessageView view,
             const text::DateTime& today) {
  const std::string kept = text::trim(files::keptText(address, MessageRecord::nameWidth));
  if (kept.empty() || !isSamePerson(text::trimmed(record.addressee), kept)) return false;
  switch (view) {
    case MessageView::All:
      return true;
    case MessageView::Daily:
      return isOfDay(record, today);
    case MessageView::Unread:
      return record.isRead == 0;
    case MessageView::New:
      return record.isNew == 1;
  }
  return false;
}

std::string gosterilen(std::string_view text, Lines lines) {
  std::string shown;
  for (std::size_t position = 0; position < text.size();) {
    const char32_t c = text::nextCharacter(text, position);
    const bool isControl = c < U' ' || (c >= 0x7F && c <= 0x9F);
    const bool isLayout = c == U'\r' || c == U'\n' || c == U'\t';
    text::appendCharacter(shown, isControl && !(isLayout && lines == Lines::Many) ? U' ' : c);
  }
  return shown;
}

MessageStamp mesajDurumu(const Station& istasyon) {
  const std::filesystem::path path = mesajDosyasi(istasyon);
  std::error_code missing;
  MessageStamp stamp{std::filesystem::last_write_time(path, missing), 0, mesajAdresi(istasyon)};
  const std::uintmax_t size = std::filesystem::file_size(path, missing);
  if (!missing) stamp.size = size;
  return stamp;
}

platform::Result<std::vector<Message>> mesajlar(const Station& istasyon, MessageView view) {
  auto all = files::readMessages(mesajDosyasi(istasyon));
  if (!all) return all;
  const std::string address = mesajAdresi(istasyon);
  const text::DateTime today = istasyon.clock.today();
  std::erase_if(
      *all, [&](const Message& message) { return !gorunur(message.record, address, view, today); });
  return all;
}

}  // namespace scheduling
