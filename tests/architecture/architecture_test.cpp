// Reads the project's own files and holds them to the rules that the compiler does not know.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/architecture/arrows.h"
#include "tests/architecture/rules.h"
#include "tests/architecture/source_tree.h"

namespace architecture {
namespace {

using Rule = std::vector<std::string> (*)(const SourceFile&);

const std::vector<SourceFile>& project() {
  static const std::vector<SourceFile> files = readTree(SANAVEL_SOURCES);
  return files;
}

void expectKept(Rule rule) {
  for (const SourceFile& file : project()) {
    for (const std::string& problem : rule(file)) ADD_FAILURE() << problem;
  }
}

TEST(ArchitectureTest, IncludesFollowTheArrows) {
  expectKept(forbiddenIncludes);
}
TEST(ArchitectureTest, OnlyTheDesktopKnowsTheToolkit) {
  expectKept(toolkitIncludes);
}
TEST(ArchitectureTest, EngineAndLocaleStayWhereTheyBelong) {
  expectKept(forbiddenWords);
}
TEST(ArchitectureTest, FilesAreShort) {
  expectKept(tooLong);
}
TEST(ArchitectureTest, FileNamesAreAscii) {
  expectKept(foreignName);
}

// A checker that looks into an empty folder would be content with anything.
TEST(ArchitectureTest, TheProjectIsSeenAsAWhole) {
  std::set<std::string_view> seen;
  for (const SourceFile& file : project()) {
    if (const auto part = partOf(file.path)) seen.insert(*part);
    EXPECT_FALSE(file.path.starts_with("build")) << file.path;
  }
  EXPECT_GT(project().size(), 250u);
  for (const Part& part : parts()) EXPECT_TRUE(seen.contains(part.folder)) << part.folder;
}

TEST(ArrowsTest, PointDownOnly) {
  std::set<std::string_view> above;
  for (const Part& part : parts()) {
    for (const std::string_view ground : part.buildsOn) {
      EXPECT_TRUE(above.contains(ground)) << part.folder << " builds on " << ground;
    }
    EXPECT_TRUE(above.insert(part.folder).second) << part.folder;
  }
}

// One offence per rule, and its harmless look-alikes.
TEST(RulesTest, NoticeWhatTheyForbid) {
  struct Case {
    const char* path;
    const char* text;
    Rule rule;
    std::size_t problems;
  };
  const std::string longText(longestFile + 1, '\n');
  const std::string shortText(longestFile, '\n');
  const Case cases[]{
      {"stores/a.cpp", "#include \"platform/dao/value.h\"\n", forbiddenIncludes, 0},
      {"stores/a.cpp", "#include \"stores/b.h\"", forbiddenIncludes, 0},
      {"stores/a.cpp", "// x\n  #  include \"shell/station.h\"\n", forbiddenIncludes, 1},
      {"stores/a.h", "#include \"platform/forms/form.h\"", forbiddenIncludes, 1},
      {"stores/a.cpp", "#include \"b.h\"", forbiddenIncludes, 1},
      {"registry/a.cpp", "#include \"tests/support/practice.h\"", forbiddenIncludes, 1},
      {"registry/a.cpp", "#include \"shell/vocabulary/row.h\"", forbiddenIncludes, 0},
      {"shell/vocabulary/a.cpp", "#include \"shell/station.h\"", forbiddenIncludes, 1},
      {"platform/text/a.cpp", "#include \"platform/files/folders.h\"", forbiddenIncludes, 1},
      {"platform/dao/a.cpp", "#include \"platform/files/folders.h\"", forbiddenIncludes, 1},
      {"tools/a.cpp", "#include \"registry/frm_main.h\"", forbiddenIncludes, 1},
      {"desktop/bind/a.cpp", "#include \"app/start_up.h\"", forbiddenIncludes, 0},
      {"app/a.cpp", "#include \"desktop/layout.h\"", forbiddenIncludes, 1},
      {"elsewhere/a.cpp", "", forbiddenIncludes, 1},
      {"storesx/a.cpp", "", forbiddenIncludes, 1},
      {"tests/stores/a.cpp", "#include \"app/start_up.h\"", forbiddenIncludes, 0},
      {"registry/a.cpp", "#include <QWidget>", toolkitIncludes, 1},
      {"registry/a.cpp", "#include <QtCore/QString>", toolkitIncludes, 1},
      {"registry/a.cpp", "#include \"QString\"", toolkitIncludes, 1},
      {"registry/a.cpp", "#include <queue>", toolkitIncludes, 0},
      {"tests/registry/a.cpp", "#include <QTest>", toolkitIncludes, 1},
      {"tests/desktop/a.cpp", "#include <QTest>", toolkitIncludes, 0},
      {"desktop/a.cpp", "#include <QWidget>", toolkitIncludes, 0},
      {"stores/a.cpp", "#include <sqlite3.h>", forbiddenWords, 1},
      {"platform/dao/a.cpp", "sqlite3* handle;", forbiddenWords, 0},
      {"shell/a.cpp", "c = std::toupper(c);", forbiddenWords, 1},
      {"shell/a.cpp", "c = toupper(c);\nd = strtod(c, 0);", forbiddenWords, 2},
      {"shell/a.cpp", "c = my_toupper(c); x = text::upper(c);", forbiddenWords, 0},
      {"tests/shell/a.cpp", "std::regex pattern;", forbiddenWords, 1},
      {"run", "cd /home/somebody/practice", forbiddenWords, 1},
      {"docs/a.md", "`/home/doctor/practice`", forbiddenWords, 1},
      {"shell/a.cpp", longText.c_str(), tooLong, 1},
      {"shell/a.cpp", shortText.c_str(), tooLong, 0},
      {"docs/a.md", longText.c_str(), tooLong, 0},
      {"shell/yaş.cpp", "", foreignName, 1},
      {"shell/age.cpp", "", foreignName, 0},
  };
  for (const Case& seen : cases) {
    EXPECT_EQ(seen.rule({seen.path, seen.text}).size(), seen.problems)
        << seen.path << ": " << std::string(seen.text).substr(0, 60);
  }
}

TEST(RulesTest, SayWhereTheOffenceIs) {
  const auto found = forbiddenIncludes({"stores/a.cpp", "\n\n#include \"shell/station.h\"\n"});
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found.front(), "stores/a.cpp:3: stores does not build on shell");
}

}  // namespace
}  // namespace architecture
