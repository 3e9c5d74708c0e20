#include "shell/vocabulary/topics.h"

#include <array>

namespace shell::topics {

std::span<const Rows> all() {
  static const std::array kTopics = {messages(),       specialities(), card(),       commands(),
                                     options(),        examination(),  cardiology(), pathology(),
                                     child(),          pregnancy(),    eye(),        appointments(),
                                     correspondence(), accounts(),     smoking()};
  return kTopics;
}

}  // namespace shell::topics
