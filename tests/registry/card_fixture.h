// A loaded patient card on a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "registry/frm_main.h"
#include "tests/support/practice.h"

namespace support {

struct CardDesk : Desk {
  explicit CardDesk(const std::string& folder, std::string_view program = "General Medicine",
                    std::string_view language = "tr")
      : Desk(folder, program, language) {
    main.Load();
  }

  // Types a name as people do and leaves the field.
  void typeName(std::string_view name) {
    main.focusMoved(&main.Txtİsim);
    main.Txtİsim.setText(name);
    main.Txtİsim.KeyUp(forms::Key{.code = 'A'});
    tick();
    main.focusMoved(&main.TxtDTarihi);
  }
  void tick() {
    main.Timer1.Tick();
    host.runTasks();
  }
  void newPatient(std::string_view name, std::string_view birth) {
    main.mnuyeni.Click();
    typeName(name);
    main.TxtDTarihi.setText(birth);
    main.mnukaydet.press();
  }
  [[nodiscard]] std::vector<std::string> listed() const {
    std::vector<std::string> names;
    for (const forms::ListItem& item : main.Lstdat.items()) names.push_back(item.text);
    return names;
  }
  [[nodiscard]] std::vector<std::string> stored() {
    std::vector<std::string> names;
    dao::Recordset& cards = station.stores.personal.IDCard;
    for (dao::Status moved = cards.MoveFirst(); moved && !cards.Eof(); moved = cards.MoveNext()) {
      names.push_back(cards.Fields("Name").text());
    }
    return names;
  }
  // A column of a stored card; "?" when there is no such card.
  [[nodiscard]] std::string column(std::string_view name, std::string_view field) {
    dao::Recordset& cards = station.stores.personal.IDCard;
    if (!cards.Seek("=", name) || cards.NoMatch()) return "?";
    return cards.Fields(field).text();
  }
  void load(std::string_view name) {
    station.SeciliHasta = std::string(name);
    main.hastaoku();
    main.Eskialanmain();
  }

  registry::FrmMain main{station};
};

struct Card : testing::Test {
  TemporaryFolder folder;
  CardDesk desk{folder.path()};
  registry::FrmMain& main = desk.main;
};

}  // namespace support
