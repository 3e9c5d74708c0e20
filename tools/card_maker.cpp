#include "tools/card_maker.h"

#include <array>
#include <string>

#include "platform/text/utf8.h"

namespace tools {

namespace {

constexpr int adultAge = 18;
constexpr int oldAge = 60;
constexpr long daysOfYear = 365;

constexpr auto listed = std::to_array<ListedColumn>({{"Place of Birth", "Place Of Birth"},
                                                     {"Profession", "Profession"},
                                                     {"Adressing", "Adressing"},
                                                     {"Company", "Company"},
                                                     {"Job", "Job"},
                                                     {"Referance", "Referance"},
                                                     {"Relationship", "Relationship"}});

std::string digits(Random& random, int count) {
  std::string text;
  while (count-- > 0) text += static_cast<char>('0' + random.below(10));
  return text;
}

std::string maybe(Random& random, unsigned share, std::string_view text) {
  return random.percent(share) ? std::string(text) : std::string();
}

// Subscriber numbers that begin with 0 are given to nobody.
std::string telephone(Random& random, std::string_view areaCode) {
  const std::string last = digits(random, 4);
  return "0(" + std::string(areaCode) + ") 0" + digits(random, 2) + " " + last;
}
std::string mobile(Random& random) {
  return telephone(random, "53" + digits(random, 1));
}

// So are identity numbers that begin with 0.
std::string identityNumber(Random& random) {
  return "0" + digits(random, 10);
}

char latinLetter(char32_t letter) {
  constexpr std::u32string_view turkish = U"çğıöşüâîûÇĞİÖŞÜ";
  constexpr std::string_view latin = "cgiosuaiucgiosu";
  const std::size_t found = turkish.find(letter);
  if (found != turkish.npos) return latin[found];
  if (letter >= U'A' && letter <= U'Z') return static_cast<char>(letter - U'A' + U'a');
  return letter >= U'a' && letter <= U'z' ? static_cast<char>(letter) : '.';
}

std::string mailAddress(const NamedPerson& person) {
  std::string user;
  for (std::size_t at = 0; at < person.name.size();) {
    user += latinLetter(text::nextCharacter(person.name, at));
  }
  while (user.ends_with('.')) user.pop_back();
  return user + std::to_string(person.number) + "@example.org";
}

int makeAge(Random& random) {
  const auto between = [&](int youngest, int oldest) {
    return youngest + static_cast<int>(random.below(static_cast<std::size_t>(oldest - youngest)));
  };
  const std::size_t stage = random.below(100);
  if (stage < 22) return between(0, adultAge);
  if (stage < 70) return between(adultAge, oldAge);
  return stage < 97 ? between(oldAge, 85) : between(85, 103);
}

text::DateTime makeBirth(Random& random, int age, const text::DateTime& reference) {
  const long days = age * daysOfYear + static_cast<long>(random.below(daysOfYear));
  return text::addDays(reference, -days);
}

// Writes one card; the columns come in the order in which chance is asked.
class CardMaker {
 public:
  CardMaker(Patient& patient, Random& random)
      : patient_(patient),
        random_(random),
        town_(random.pickRanked(towns())),
        surname_(surnameOf(patient.person.name)) {}

  void make() {
    identity();
    family();
    address();
    employment();
    practice();
  }

 private:
  void put(std::string_view column, dao::Value value) {
    patient_.card.push_back({column, std::move(value)});
  }
  void maybePut(std::string_view column, unsigned share, std::string_view text) {
    put(column, maybe(random_, share, text));
  }
  [[nodiscard]] bool adult() const { return patient_.age >= adultAge; }

  // Without the marks of a namesake.
  static std::string surnameOf(std::string_view name) {
    const std::string_view bare = name.substr(0, name.find('*'));
    return std::string(bare.substr(bare.rfind(' ') + 1));
  }

  // Old people often know the year alone. A few cards were saved before the sex was chosen.
  void identity() {
    const bool yearOnly = random_.percent(patient_.age >= oldAge ? 20 : 3);
    put("Name", patient_.person.name);
    if (!yearOnly) put("Date of Birth", patient_.birth);
    put("Year of Birth", yearOnly ? std::to_string(patient_.birth.year()) : std::string());
    put("Sex", random_.percent(1) ? "2" : std::to_string(static_cast<int>(patient_.person.sex)));
    maybePut("Blood Group", 70, random_.pick(bloodGroups()));
    put("Place of Birth", random_.percent(70) ? town_.name : random_.pick(towns()).name);
    maybePut("ID Number", 80, identityNumber(random_));
    maybePut("Key", 1, hiddenKey);
  }

  void family() {
    put("Mothers Name", makeGivenName(random_, Sex::Female));
    put("Fathers Name", makeGivenName(random_, Sex::Male));
    maybePut("Adressing", adult() ? 60 : 0,
             random_.pickRanked(formsOfAddress(patient_.person.sex)));
  }

  void address() {
    put("Address1", random_.pick(districts()));
    put("Address2", std::string(random_.pick(streets())) + " No: " + number(120));
    maybePut("Address3", 40, "Daire " + number(30));
    put("Address4", town_.name);
    put("email", maybe(random_, adult() ? 45 : 5, mailAddress(patient_.person)));
    maybePut("Telephone1", 50, telephone(random_, town_.areaCode));
    maybePut("Telephone2", 8, telephone(random_, town_.areaCode));
    maybePut("Mobil", 85, mobile(random_));
    maybePut("Fax", 2, telephone(random_, town_.areaCode));
  }

  // A card names the employer of whoever pays: the patient, or a relative of the patient.
  void employment() {
    const bool employed = random_.percent(65);
    const bool insured = adult() && random_.percent(75);
    const Sex payer = random_.percent(50) ? Sex::Female : Sex::Male;
    const std::string relative = makeGivenName(random_, payer) + " " + surname_;
    const std::string_view tie = insured   ? relationship::self
                                 : adult() ? relationship::spouse
                                           : relationship::child;
    put("Profession", adult() ? profession() : std::string());
    maybePut("Company", employed ? 100 : 0, random_.pickRanked(employers()));
    maybePut("Job", employed ? 80 : 0, random_.pick(jobs()));
    maybePut("Personnel", employed ? 100 : 0, insured ? patient_.person.name : relative);
    maybePut("Personnel Number", employed ? 60 : 0, digits(random_, 6));
    maybePut("Relationship", employed ? 100 : 0, tie);
  }

  void practice() {
    maybePut("Notes", 20, random_.pick(remarks()));
    maybePut("Referance", 25, random_.pickRanked(doctors()));
    maybePut("Option2", 85, std::to_string(patient_.person.number));
    maybePut("Option3", 10, "F-" + digits(random_, 5));
    put("Photo", "");
  }

  std::string profession() {
    if (patient_.age >= oldAge && random_.percent(60)) return "Emekli";
    return maybe(random_, 90, random_.pickRanked(professions()));
  }
  std::string number(std::size_t highest) { return std::to_string(1 + random_.below(highest)); }

  Patient& patient_;
  Random& random_;
  const Town& town_;
  std::string surname_;
};

}  // namespace

std::span<const ListedColumn> listedColumns() {
  return listed;
}

Patient makePatient(const NamedPerson& person, std::uint64_t seed,
                    const text::DateTime& reference) {
  Random random(Random(seed ^ person.number).next());
  Patient patient{person, makeAge(random), {}, {}};
  patient.birth = makeBirth(random, patient.age, reference);
  CardMaker(patient, random).make();
  return patient;
}

}  // namespace tools
