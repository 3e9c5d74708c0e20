#include "shell/address_picker.h"

namespace shell {

void adresSec(Station& istasyon, std::vector<std::string>& names) {
  istasyon.AdresListesi = &names;
  istasyon.ekranAc("FrmFind");
  istasyon.AdresListesi = nullptr;
}

}  // namespace shell
