#include "tools/name_maker.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "platform/text/utf8.h"

namespace tools {

namespace {

constexpr std::size_t nameWidth = 40;
constexpr unsigned secondNameShare = 25;
constexpr unsigned namesakeShare = 12;

std::string doubleName(Random& random, Sex sex) {
  const Words names = givenNames(sex);
  const std::string_view first = random.pickRanked(names);
  const std::string_view second = random.pick(names);
  return first == second ? std::string(first) : std::string(first).append(" ").append(second);
}

// Hands out names until it is gone; views of them stay valid, since the room is reserved before.
class Register {
 public:
  explicit Register(std::size_t count) { people_.reserve(count); }

  void add(Random& random) {
    const Sex sex = random.percent(54) ? Sex::Female : Sex::Male;
    people_.push_back({freeName(random, sex), sex, people_.size() + 1});
    taken_.insert(people_.back().name);
  }
  [[nodiscard]] std::vector<NamedPerson> people() && { return std::move(people_); }

 private:
  // Whoever has a name that is in use mostly turns out to have a second one.
  [[nodiscard]] std::string freeName(Random& random, Sex sex) const {
    std::string given = makeGivenName(random, sex);
    for (;;) {
      std::string name = std::move(given).append(" ").append(random.pickRanked(surnames()));
      if (taken_.contains(name) && random.percent(namesakeShare)) name = marked(std::move(name));
      if (!taken_.contains(name)) return name;
      given = doubleName(random, sex);
    }
  }
  [[nodiscard]] std::string marked(std::string name) const {
    while (taken_.contains(name) && text::length(name) < nameWidth) name += '*';
    return name;
  }

  std::vector<NamedPerson> people_;
  std::unordered_set<std::string_view> taken_;
};

}  // namespace

std::string makeGivenName(Random& random, Sex sex) {
  if (random.percent(secondNameShare)) return doubleName(random, sex);
  return std::string(random.pickRanked(givenNames(sex)));
}

std::vector<NamedPerson> makeNames(Random& random, std::size_t count) {
  Register names(count);
  for (std::size_t made = 0; made < count; ++made) names.add(random);
  std::vector<NamedPerson> people = std::move(names).people();
  std::ranges::sort(people, {}, &NamedPerson::name);
  return people;
}

}  // namespace tools
