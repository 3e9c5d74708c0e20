// The finder beside a loaded card, over cards that a test writes itself.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "search/frm_find.h"
#include "tests/registry/card_fixture.h"

namespace support {

struct Finder : testing::Test {
  using Fields = std::initializer_list<std::pair<const char*, std::string>>;

  TemporaryFolder folder;
  CardDesk desk{folder.path()};

  void card(const std::string& name, Fields fields = {}) {
    dao::Recordset& cards = desk.station.stores.personal.IDCard;
    ASSERT_TRUE(cards.AddNew());
    ASSERT_TRUE(cards.Fields("Name").Set(name));
    for (const auto& [field, value] : fields) ASSERT_TRUE(cards.Fields(field).Set(value)) << field;
    ASSERT_TRUE(cards.Update());
  }
  // More than a page of the scan, in one transaction: "Hasta 0000" and so on.
  void manyCards(int count) {
    auto all = desk.station.stores.personal.database.beginTransaction();
    ASSERT_TRUE(all);
    for (int i = 0; i < count; ++i) card("Hasta " + std::to_string(10000 + i).substr(1));
    ASSERT_TRUE(all->commit());
  }

  [[nodiscard]] static std::vector<std::string> keys(const forms::ListView& list) {
    std::vector<std::string> all;
    for (std::size_t row = 0; row < list.rowCount(); ++row) all.emplace_back(list.key(row));
    return all;
  }
  // What the button finds with these filters.
  std::vector<std::string> find(Fields filters) {
    search::FrmFind finder(desk.station);
    finder.Load();
    for (const auto& [name, value] : filters)
      dynamic_cast<forms::TextControl&>(*finder.find(name)).setText(value);
    finder.butbul.press();
    desk.host.runTasks();
    EXPECT_EQ(finder.LSayı.caption(), std::to_string(finder.BulList.rowCount()));
    return keys(finder.BulList);
  }
};

}  // namespace support
