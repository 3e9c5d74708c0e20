#include "shell/fault_words.h"

#include <algorithm>
#include <array>
#include <optional>

namespace shell {

namespace {

using platform::Fault;

struct Reason {
  Fault fault;
  Phrase words;
};

constexpr auto reasons = std::to_array<Reason>({
    {Fault::Missing, Phrase::NoFile},
    {Fault::DiskFull, Phrase::NoRoom},
    {Fault::ReadOnly, Phrase::NotWritable},
    {Fault::Damaged, Phrase::FileDamaged},
    {Fault::NotAFile, Phrase::NotAPlainFile},
    {Fault::TooLarge, Phrase::FileTooLarge},
    {Fault::Failed, Phrase::WorkFailed},
    {Fault::Unsupported, Phrase::OtherFile},
    {Fault::Busy, Phrase::FileInUse},
    {Fault::Exists, Phrase::AlreadyThere},
    {Fault::Stale, Phrase::RecordGone},
    {Fault::NoCurrent, Phrase::NotOpen},
    {Fault::TooLong, Phrase::TextTooLong},
    {Fault::ZeroLength, Phrase::FieldEmpty},
    {Fault::NullKey, Phrase::FieldEmpty},
    {Fault::WrongType, Phrase::FieldRefuses},
});

std::optional<std::string> wordsOf(Station& istasyon, const platform::Status& fault) {
  const auto reason = std::ranges::find(reasons, fault.fault(), &Reason::fault);
  if (reason == reasons.end()) return std::nullopt;
  return phrase(istasyon, reason->words);
}

}  // namespace

std::string kisaNedeni(Station& istasyon, const platform::Status& fault) {
  return wordsOf(istasyon, fault).value_or(fault.text());
}

std::string nedeni(Station& istasyon, const platform::Status& fault) {
  const auto words = wordsOf(istasyon, fault);
  return words ? *words + "\n(" + fault.text() + ")" : fault.text();
}

void hataSoyle(Station& istasyon, const platform::Status& fault) {
  istasyon.host.runtimeError({fault.fault(), nedeni(istasyon, fault)});
}

void hataSoyle(Station& istasyon, Phrase failed, const platform::Status& fault) {
  istasyon.host.runtimeError({fault.fault(), phrase(istasyon, failed) + nedeni(istasyon, fault)});
}

void ayarlarOkunduMu(Station& istasyon, const platform::Status& read) {
  if (read) return;
  const bool mended = read.fault() == Fault::Damaged;
  hataSoyle(istasyon, mended ? Phrase::SettingsMended : Phrase::SettingsNotRead, read);
}

}  // namespace shell
