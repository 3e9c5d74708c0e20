// The dialog of templates: which of letterhead, name, date and signature a screen prints.
#pragma once

#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace documents {

// A piece of the sample page: a caption, its height on the sample, and a font when it has one of
// its own.
class SamplePart : public forms::Label {
 public:
  SamplePart(forms::Form& form, std::string_view name, int top) : Label(form, name), top_(top) {}

  // In twips of the sample, which is a third of the page.
  [[nodiscard]] int top() const { return top_; }
  void setTop(int top);
  [[nodiscard]] const forms::Font& font() const { return font_; }
  void setFont(const forms::Font& font);

 private:
  int top_;
  forms::Font font_;
};

class FrmPattern : public forms::Form {
 public:
  explicit FrmPattern(shell::Station& istasyon);

  forms::ListBox List1{*this, "List1"};
  forms::Label lblsablonno{*this, "lblsablonno"};
  forms::Label lblicerik{*this, "lblicerik"};
  forms::Picture Imgicon{*this, "Imgicon"};
  SamplePart ImgBaşlık{*this, "ImgBaşlık", headingTop};
  SamplePart imgisim{*this, "imgisim", nameTop};
  SamplePart imgtarih{*this, "imgtarih", nameTop};
  SamplePart imgmetin{*this, "imgmetin", textTop};
  SamplePart imgimza{*this, "imgimza", signatureTop};
  forms::TextBox txtimza{*this, "txtimza", forms::TextLines::Multiple};
  forms::CommandButton butfont{*this, "butfont"};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};
  forms::CommandButton ButYardım{*this, "ButYardım"};

  // Shows the number and the signature that the station holds; the caller put them there.
  void Load() override;
  // Changes the font of the signature, as butfont does.
  void imzaFontu(const forms::Font& font);

  // A third of the places on the page.
  static constexpr int headingTop = 100;
  static constexpr int nameTop = 700;
  static constexpr int textTop = 100;
  static constexpr int signatureTop = 2000;

 private:
  void ornekYaz();
  void sablonDegisti();
  void tamam();

  shell::Station& istasyon;
};

}  // namespace documents
