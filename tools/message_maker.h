// Some messages between the people of the invented practice.
#pragma once

#include <string>
#include <string_view>

#include "platform/status/status.h"
#include "platform/text/date.h"

namespace tools {

// To whom most of the messages are addressed.
inline constexpr std::string_view messageReader = "Dr. Işık Çağlayan";

[[nodiscard]] platform::Status writeMessages(const std::string& folder, const text::DateTime& day);

}  // namespace tools
