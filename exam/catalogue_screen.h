// A catalogue beside its list. A name is typed to find a record, to add it to a text that is being
// composed, or to enter or rename a record; which of them it was shows only afterwards. So what
// stands beside the name never goes with another name unasked, and a name that was only searched
// for never becomes a record unasked.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/list_control.h"
#include "platform/text/utf8.h"
#include "shell/named_record_screen.h"
#include "shell/phrases.h"

namespace exam {

enum class Completion { None, WhileTyping };

// The composed text as it goes into the therapy: a line break that two blanks follow is taken out
// together with them, so that each drug ends up on a line of its own.
[[nodiscard]] std::string kabulEdilen(std::string_view prescription);

class CatalogueScreen : public shell::NamedRecordScreen {
 public:
  using NamedRecordScreen::NamedRecordScreen;

  void alanlaribosalt() override;
  void Yeni() override;
  // A name that stands alone, or over the fields of another record, is asked about first.
  [[nodiscard]] bool QueryUnload() override;
  [[nodiscard]] bool mayEscape() override;
  void Unload() override;

 protected:
  [[nodiscard]] virtual forms::ListBox& list() = 0;
  // To be called by the constructor of the screen.
  void connectList(Completion completion);
  // All names of the table; rows stay ticked.
  void listNames();
  void listeDegisti() override { listNames(); }
  void store() override;
  void kayitYuklendi() override;

  [[nodiscard]] std::string typedName() { return text::trim(isimAlani().text()); }
  // The record of the typed name comes onto the screen, if there is one. False when the user keeps
  // what is there.
  [[nodiscard]] bool lookUp();
  // The record of the list's row comes onto the screen; false when there is none, or the user keeps
  // what is there.
  [[nodiscard]] bool showRow();
  // The typed name, to be added somewhere, as the catalogue spells it. One that the catalogue does
  // not have is asked about: none when it is not to be added. To be called after lookUp.
  [[nodiscard]] std::optional<std::string> nameToAdd(shell::Phrase question);
  // The typed name is new, and what stands beside it belongs to this other one; empty otherwise.
  [[nodiscard]] std::string ownerOfFields();
  // What stands beside the name differs from what is stored.
  [[nodiscard]] bool othersChanged() { return others() != storedOthers_; }
  // Asks before it is replaced by that record.
  [[nodiscard]] bool mayReplace(std::string_view by);
  // A new record under that name.
  void beginWith(const std::string& name);
  // What stands beside a name that is not stored belongs to it from now on.
  void own();
  // The text that is being composed for the caller.
  [[nodiscard]] virtual std::string composed() { return {}; }
  // Whether something of it would go with the window.
  [[nodiscard]] virtual bool holdsComposed() { return !composed().empty(); }
  enum class Composed { HandedOver, GivenUp };
  // Closes the window without a question about what was composed.
  void closeByButton(Composed what);
  // The record on the screen was chosen in the list, and its name was not touched since.
  [[nodiscard]] bool chosenInList() { return chosen_ && typedName() == owner_; }

 private:
  void typed(const forms::Key& key);
  void followTyping();
  void chooseRow(int row);
  void markShown();
  void rowChosen();
  [[nodiscard]] bool show(const std::string& stored);
  [[nodiscard]] std::optional<std::string> known(std::string_view name);
  [[nodiscard]] bool onlySearched();
  [[nodiscard]] bool settleName();
  [[nodiscard]] bool mayLoseComposed();
  [[nodiscard]] std::string others();

  Completion completion_ = Completion::None;
  std::vector<std::string> folded_;  // the names of the list, folded for the search
  std::string owner_;                // the name to which what stands beside it belongs
  std::string storedOthers_;         // what stands beside it, as it is stored
  bool following_ = false;           // the list follows what is typed: nobody chose the row
  bool chosen_ = false;
  bool composedMayGo_ = false;
  bool handsOver_ = false;  // while the window closes by its accepting button
};

}  // namespace exam
