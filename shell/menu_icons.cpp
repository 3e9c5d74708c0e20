#include "shell/menu_icons.h"

#include <array>
#include <string_view>
#include <utility>

#include "platform/forms/menu.h"

namespace shell {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 31> icons{{
    {"mnuyeni", "New"},
    {"mnukaydet", "Save"},
    {"mnusil", "Delete"},
    {"mnuonizleme", "previve"},
    {"mnuyazdır", "Print"},
    {"mnucik", "Exit"},
    {"mnugerial", "Undo"},
    {"mnukes", "Cut"},
    {"mnukopyala", "Copy"},
    {"mnuyapıştır", "Paste"},
    {"mnugeri", "Geri"},
    {"mnuileri", "ileri"},
    {"mnubul", "Find"},
    {"mnusecenekler", "option"},
    {"mnutestfiltrele", "filtre"},
    {"mnugrafik", "grafik"},
    {"mnutestdüzenle", "testler"},
    {"mnuyedekle", "beckup"},
    {"mnugeriyukle", "restore"},
    {"mnudosyabakimi", "care"},
    {"mnumesajlar", "mesaj"},
    {"mnuhesaplar", "invoice"},
    {"mnumesajyaz", "yaz"},
    {"mnuyanıtla", "yanit"},
    {"mnumesajal", "al"},
    {"mnutümmesajlarısil", "Delete"},
    {"mnuayar", "ayar"},
    {"mnusihirbaz", "sihirbaz"},
    {"mnuShowHidden", "keyclose"},
    {"mnuLockHidden", "keyopen"},
    {"mnuChooseHidden", "idpass"},
}};

}  // namespace

void menuikon(forms::Form& form) {
  for (const auto& [entry, icon] : icons) {
    if (auto* item = dynamic_cast<forms::MenuItem*>(form.find(entry))) item->setIcon(icon);
  }
}

}  // namespace shell
