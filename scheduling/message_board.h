// The notes for the user of this desk, out of the file that all stations share.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/message_file.h"
#include "shell/station.h"

namespace scheduling {

enum class MessageView { All, Daily, Unread, New };

// A view, the setting that chooses it, and its title.
struct MessageViewRow {
  MessageView view;
  std::string_view setting;
  std::string_view missing;  // what counts when the setting was never written
  std::string_view title;    // a key of the text lookup
};
inline constexpr std::array messageViews{
    MessageViewRow{MessageView::All, "optmsgall", "1", "tummesajlar"},
    MessageViewRow{MessageView::Daily, "optmsgdaily", "0", "gunlukmesajlar"},
    MessageViewRow{MessageView::Unread, "optmsgbold", "0", "okunmamismesajlar"},
    MessageViewRow{MessageView::New, "optmsgnew", "0", "yenimesajlar"},
};

// The view that the settings choose; all messages when they choose none.
[[nodiscard]] const MessageViewRow& secilenGorunum(const shell::Station& istasyon);
void gorunumSakla(shell::Station& istasyon, MessageView view);

[[nodiscard]] std::string mesajDosyasi(const shell::Station& istasyon);
// The names of senders and addressees.
[[nodiscard]] std::string isimDosyasi(const shell::Station& istasyon);
// The user's own name; empty until it was given. Without one nothing is for this user.
[[nodiscard]] std::string mesajAdresi(const shell::Station& istasyon);
// Asks for the name and keeps it. False when the user gives none.
bool mesajAdresiSor(shell::Station& istasyon, std::string_view prompt, std::string_view title);

// Whether the note is for that person, in any case of the letters and as the file keeps the name,
// and belongs to the view. `address` empty is nobody.
[[nodiscard]] bool gorunur(const files::MessageRecord& record, std::string_view address,
                           MessageView view, const text::DateTime& today);

// What a person can be shown of a text that another program, or none, may have written: control
// characters become blanks, the ends of lines too where there is one line.
enum class Lines { One, Many };
[[nodiscard]] std::string gosterilen(std::string_view text, Lines lines);

// Tells the user when the messages, or the names of those who write them, are there and cannot be
// read as they stand.
void mesajlarOkunurMu(shell::Station& istasyon);

// When two are equal, there is nothing to read that was not there before.
struct MessageStamp {
  std::filesystem::file_time_type changed;
  std::uintmax_t size = 0;  // 0 without a file
  std::string address;
  bool operator==(const MessageStamp&) const = default;
};
[[nodiscard]] MessageStamp mesajDurumu(const shell::Station& istasyon);

// What the user of this desk sees in that view, in the order of the file.
[[nodiscard]] platform::Result<std::vector<files::Message>> mesajlar(const shell::Station& istasyon,
                                                                     MessageView view);

}  // namespace scheduling
