#include "shell/visit_buttons.h"

#include <array>
#include <functional>

#include "stores/visit_ledger.h"

namespace shell {

namespace {

struct Button {
  std::string_view key;
  std::reference_wrapper<const stores::RecordKind> kind;
  std::string_view image;
};

constexpr std::array<Button, 9> buttons{{
    {"operation", stores::kind::operation, "operation"},
    {"fizikgelişme", stores::kind::growth, "fizikgelişme"},
    {"asi", stores::kind::vaccination, "asi"},
    {"Gebe", stores::kind::pregnancy, "gebe"},
    {"Lens", stores::kind::lens, "lens"},
    {"angio", stores::kind::angiography, "angio"},
    {"echo", stores::kind::echocardiography, "echo"},
    {"efor", stores::kind::exerciseTest, "efor"},
    {"test", stores::kind::laboratory, "test"},
}};

}  // namespace

void vizitDugmeleri(Station& istasyon, forms::Toolbar& toolbar, std::string_view patient) {
  for (const Button& button : buttons) {
    const forms::ToolButton* const shown = toolbar.button(button.key);
    if (shown == nullptr || !shown->visible) continue;
    const bool any =
        !patient.empty() &&
        stores::hasLedgerRow(istasyon.stores.clinical.Visit,
                             stores::ledgerKey(istasyon.BransAdi, button.kind, patient));
    toolbar.setButtonImage(button.key, std::string(button.image) + (any ? "v" : ""));
  }
}

}  // namespace shell
