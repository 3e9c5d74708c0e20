#include "platform/files/name_list.h"

#include <gtest/gtest.h>

#include "tests/platform/files/child_process.h"
#include "tests/platform/files/temporary_folder.h"

namespace {

using Names = std::vector<std::string>;

TEST(NameList, AppendsWhatIsNotThereYet) {
  const TemporaryFolder folder;
  const auto path = folder / "List.dat";
  for (const char* name : {"Ayşe", " Ayşe ", "ayşe", "İrem", "", "   ", "Ayşe"}) {
    EXPECT_TRUE(files::addName(path, name)) << name;
  }
  EXPECT_EQ(files::readNames(path), (Names{"Ayşe", "ayşe", "İrem"}));
  EXPECT_EQ(contentOf(path).size(), 90U);
  EXPECT_EQ(contentOf(path).substr(0, 31),
            "Ay\xfe"
            "e                          a");
}

TEST(NameList, ComparesAsWideAsItKeeps) {
  const TemporaryFolder folder;
  const std::string wide(40, 'x');
  EXPECT_TRUE(files::addName(folder / "List.dat", wide));
  EXPECT_TRUE(files::addName(folder / "List.dat", wide + "y"));
  EXPECT_EQ(files::readNames(folder / "List.dat"), Names{std::string(30, 'x')});
}

TEST(NameList, ReadsForeignAndBrokenFiles) {
  const TemporaryFolder folder;
  const auto path = folder / "List.dat";
  EXPECT_EQ(files::readNames(path), Names{});
  std::string bytes(75, '\0');
  bytes.replace(0, 5, "  Ali");
  bytes.replace(60, 4, "Veli");
  fill(path, bytes);
  EXPECT_EQ(files::readNames(path), (Names{"Ali", "Veli"}));
  EXPECT_TRUE(files::addName(path, "Ali"));
  EXPECT_TRUE(files::addName(path, "Can"));
  EXPECT_EQ(files::readNames(path), (Names{"Ali", "Veli", "Can"}));
}

TEST(NameList, TwoStationsAddingAtOnceBothSucceed) {
  const TemporaryFolder folder;
  const auto path = folder / "List.dat";
  const auto addMany = [&](const std::string& prefix) {
    bool ok = true;
    for (int i = 0; i < 50; ++i) {
      ok = ok && files::addName(path, prefix + std::to_string(i)) &&
           files::addName(path, "common" + std::to_string(i));
    }
    return ok;
  };
  ChildProcess other([&] { return addMany("b"); });
  EXPECT_TRUE(addMany("a"));
  EXPECT_TRUE(other.succeeded());
  EXPECT_EQ(files::readNames(path)->size(), 150U);
}

TEST(NameList, SaysWhyItFails) {
  const TemporaryFolder folder;
  EXPECT_EQ(files::addName(folder / "no/List.dat", "a").fault(), platform::Fault::Missing);
  EXPECT_EQ(files::readNames(folder / "no/List.dat").error().fault(), platform::Fault::Missing);
}

}  // namespace
