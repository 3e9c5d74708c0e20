// The picture archive: up to six pictures of one record, by the paths of their files. No file is
// copied, renamed or removed here.
#pragma once

#include <array>

#include "images/archive_picture.h"
#include "platform/forms/button.h"
#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"
#include "platform/page/page.h"
#include "shell/station.h"

namespace images {

class FrmPicture : public forms::Form {
 public:
  // Works on Station::Resimler; OK puts the paths back there, anything else leaves them as they
  // were.
  explicit FrmPicture(shell::Station& istasyon);

  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnuonizleme{MnuDosya, "mnuonizleme"};
  forms::MenuItem mnuyazdır{MnuDosya, "mnuyazdır"};
  // Also the menu of the right mouse button.
  forms::MenuItem mnudüzen{*this, "mnudüzen"};
  forms::MenuItem mnuekle{mnudüzen, "mnuekle"};  // into the first free place
  forms::MenuItem mnuaç{mnudüzen, "mnuaç"};      // into the chosen place
  forms::MenuItem mnusil{mnudüzen, "mnusil"};
  forms::MenuItem mnuçizgi{mnudüzen, "mnuçizgi", forms::MenuKind::Separator};
  forms::MenuItem mnugeri{mnudüzen, "mnugeri"};
  forms::MenuItem mnuileri{mnudüzen, "mnuileri"};
  forms::MenuItem MnuBoyut{*this, "MnuBoyut"};
  forms::MenuItem mnu100{MnuBoyut, "mnu100"};
  forms::MenuItem mnu150{MnuBoyut, "mnu150"};
  forms::MenuItem mnu200{MnuBoyut, "mnu200"};
  forms::MenuItem mnu400{MnuBoyut, "mnu400"};

  // The path of a thumbnail is that of its place; an empty one is a free place.
  ArchivePicture Img1{*this, "Img1"};
  ArchivePicture Img2{*this, "Img2"};
  ArchivePicture Img3{*this, "Img3"};
  ArchivePicture Img4{*this, "Img4"};
  ArchivePicture Img5{*this, "Img5"};
  ArchivePicture Img6{*this, "Img6"};

  forms::Panel PicÇerçeve{*this, "PicÇerçeve"};
  ArchivePicture picfoto{*this, "picfoto"};  // the chosen picture, large
  forms::ScrollBar HSlFoto{*this, "HSlFoto"};
  forms::ScrollBar VSlfoto{*this, "VSlfoto"};
  forms::Label LResimno{*this, "LResimno"};
  forms::TextBox txtfoto{*this, "txtfoto"};  // the path of the chosen picture
  forms::Label lblImg{*this, "lblImg"};      // the number of the chosen place, 1 to 6

  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  void Load() override;

  [[nodiscard]] const std::array<ArchivePicture*, 6>& resimler() const { return resimler_; }
  // The chosen place; 0 when there is none.
  [[nodiscard]] std::size_t secilen() const;

  // Shows what is in the place large; a free place does nothing.
  void sec(std::size_t number);
  // Chooses the place for the menu, free or not.
  void isaretle(std::size_t number);
  // Asks for a file and puts it into the place.
  void ac(std::size_t number);
  void Fotoyükle();
  // Lays the picture into its frame and sets the bars to what it is larger. The point in the middle
  // stays there.
  void FotoOrtala();
  // The next larger or smaller of the four sizes.
  enum class Step { Smaller, Larger };
  void boyutDegistir(Step step);
  [[nodiscard]] int boyut() const { return boyut_; }
  // The page of the record: the large picture alone, else the sheet of six.
  void oniz();
  void Yazdır();

 private:
  struct Zoom {
    int percent;
    forms::MenuItem* entry;
  };

  void resimleriBagla();
  void menuleriBagla();
  void boyutlariBagla();
  void resmiKoy(std::size_t number, const std::string& path);
  void resmiSil();
  void tamam();
  void yuruyus(int direction);
  [[nodiscard]] std::size_t komsu(int direction) const;
  [[nodiscard]] std::size_t bosYer() const;
  [[nodiscard]] page::Pages sayfa() const;
  [[nodiscard]] std::string baslangicKlasoru(std::size_t number) const;
  void sozleriYaz();
  void girisleriAyarla();

  void boyutla(int percent);
  void boyutlariAyarla();
  void kaydir();
  void barlariAyarla(Extent picture);

  shell::Station& istasyon;
  std::array<ArchivePicture*, 6> resimler_{&Img1, &Img2, &Img3, &Img4, &Img5, &Img6};
  std::array<Zoom, 4> boyutlar_{{{100, &mnu100}, {150, &mnu150}, {200, &mnu200}, {400, &mnu400}}};
  int boyut_ = 100;
  Extent cerceve_;
  Extent gorunen_;  // the picture as large as it is shown
};

}  // namespace images
