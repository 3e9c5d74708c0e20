#include "platform/settings/user.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>

namespace {

// A variable of the environment for the length of a test.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    assign(value);
  }
  ~Variable() { assign(before_ ? before_->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void assign(const char* value) {
    if (value == nullptr) {
      ::unsetenv(name_);
    } else {
      ::setenv(name_, value, 1);
    }
  }

  const char* name_;
  std::optional<std::string> before_;
};

TEST(UserLanguage, ComesFromTheRegionOfTheUser) {
  const struct {
    const char* all;
    const char* messages;
    const char* lang;
    std::string_view language;
  } cases[] = {{nullptr, nullptr, "tr_TR.UTF-8", "tr"}, {"", "", "tr_TR.UTF-8", "tr"},
               {"de_DE@euro", "en_US", "tr_TR", "de"},  {nullptr, "EN_GB", "tr_TR", "en"},
               {nullptr, nullptr, "tr", "tr"},          {nullptr, nullptr, nullptr, "en"},
               {"C", nullptr, "tr_TR", "en"},           {"POSIX", nullptr, nullptr, "en"},
               {"C.UTF-8", nullptr, nullptr, "en"},     {nullptr, nullptr, "x1_YY", "en"},
               {nullptr, nullptr, "\xc5\x9f_TR", "en"}, {nullptr, nullptr, "_", "en"}};
  for (const auto& c : cases) {
    const Variable all("LC_ALL", c.all);
    const Variable messages("LC_MESSAGES", c.messages);
    const Variable lang("LANG", c.lang);
    EXPECT_EQ(settings::userLanguage(), c.language);
  }
}

TEST(UserSettingsPath, IsInTheUsersConfigurationFolder) {
  const passwd* const user = ::getpwuid(::getuid());
  ASSERT_NE(user, nullptr);
  const std::string own = std::string(user->pw_dir) + "/.config/sanavel/settings.txt";
  const struct {
    const char* configuration;
    const char* home;
    std::string_view path;
  } cases[] = {{"/c", "/home/u", "/c/sanavel/settings.txt"},
               {nullptr, "/home/u", "/home/u/.config/sanavel/settings.txt"},
               {"", "/home/u", "/home/u/.config/sanavel/settings.txt"},
               {"relative", "/home/u", "/home/u/.config/sanavel/settings.txt"},
               {nullptr, nullptr, own},
               {nullptr, "", own}};
  for (const auto& c : cases) {
    const Variable configuration("XDG_CONFIG_HOME", c.configuration);
    const Variable home("HOME", c.home);
    EXPECT_EQ(settings::userSettingsPath(), c.path);
  }
}

}  // namespace
