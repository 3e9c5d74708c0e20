// Laboratory results of a patient: the value being written down, and all values in a grid with
// those marked that lie outside their reference range.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "documents/print_menu.h"
#include "exam/analysis_filter.h"
#include "platform/forms/grid.h"
#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "shell/font_record.h"
#include "shell/numbered_record.h"
#include "shell/record_screen.h"
#include "stores/analyses.h"

namespace exam {

// The columns of the grid; the last one is hidden.
namespace result_column {
inline constexpr int date = 0;
inline constexpr int test = 1;
inline constexpr int result = 2;
inline constexpr int unit = 3;
inline constexpr int min = 4;
inline constexpr int max = 5;
inline constexpr int number = 6;
inline constexpr int count = 7;
}  // namespace result_column

class FrmTest : public shell::RecordScreen, public documents::PrintedRecord {
 public:
  explicit FrmTest(shell::Station& istasyon);

  forms::MenuItem mnutestler{*this, "mnutestler"};
  forms::MenuItem mnutestfiltrele{mnutestler, "mnutestfiltrele"};
  forms::MenuItem mnutümü{mnutestler, "mnutümü"};
  forms::MenuItem mnugrafik{mnutestler, "mnugrafik"};
  forms::MenuItem mnutestdüzenle{mnutestler, "mnutestdüzenle"};
  forms::Label lblisim{*this, "lblisim"};    // the patient, as the tables hold the name
  forms::Label lblhasta{*this, "lblhasta"};  // the banner
  forms::DateBox txttarih{*this, "txttarih"};
  forms::ComboBox comtest{*this, "comtest"};
  forms::TextBox txtsonuç{*this, "txtsonuç"};
  forms::TextBox txtbirim{*this, "txtbirim"};
  forms::TextBox txtmin{*this, "txtmin"};
  forms::TextBox txtmax{*this, "txtmax"};
  forms::Grid msgrid1{*this, "msgrid1", {.cols = result_column::count}, forms::GridChoice::Rows};
  forms::StatusBar sbDurum{*this, "sbDurum", 2};
  forms::ListBox Lstkn{*this, "Lstkn"};        // the numbers of the patient's values
  forms::TextBox txtcount{*this, "txtcount"};  // empty for a value that was never saved

  documents::PrintMenu baski{
      istasyon, {mnuşablon, mnuonizleme, mnuyazdır}, *this, shell::font_record::laboratory};

  // Stores the value and its ledger row, both or neither; the fields are free for the next value.
  void Kaydet() override;
  void Sil() override;
  // Everything but the date.
  void alanlaribosalt() override;
  bool alanlaritasi(const dao::Value& number) override;
  dao::Status Forumalanlaritasi() override;

  // Fills the grid with all values of the patient.
  void VAnalizleriyaz();
  // Fills it with those that fit; Lstkn keeps the numbers of the chosen tests.
  void filtreliYaz(const AnalysisFilter& filter);
  // The values in the grid on paper, the latest day first, each with its mark, unit and range.
  void tetkikleriyazdır() { baski.Yazdır(); }
  void Yazılar(documents::ReportText& yazı) override;
  [[nodiscard]] std::string basilanIsim() const override { return lblisim.caption(); }
  [[nodiscard]] std::string basilanTarih() const override {
    return text::shortDate(istasyon.clock.today());
  }
  // The tests of the catalogue.
  void Testlistele();

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override;
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.clinical.Analyze; }
  [[nodiscard]] std::string eskiAnahtar() const override { return txtcount.text(); }
  [[nodiscard]] std::string& yedek() override { return yedek_; }
  void Load() override;
  // A test without a result was only chosen: it is asked about before it is stored.
  [[nodiscard]] bool QueryUnload() override;
  void Unload() override;
  void tuskontrol() override;

 protected:
  [[nodiscard]] bool kaydedilebilir() override;
  [[nodiscard]] bool temizlenebilir() override;
  [[nodiscard]] std::vector<std::string> missing() override;
  [[nodiscard]] std::string YeniAlanlar() override;
  void durumYaz(std::string text) override { sbDurum.setPanel(1, std::move(text)); }
  bool tusBas(std::string_view key) override;
  void basliklariYenile() override;

 private:
  using Analyses = std::vector<stores::Analysis>;
  using Numbers = std::vector<std::int64_t>;

  void olaylariBagla();
  void hastaDegisti();
  void Yeni();
  [[nodiscard]] dao::Status kayitYaz();
  [[nodiscard]] shell::NumberedRecord kayit();
  [[nodiscard]] dao::Status silVeListele(std::int64_t number);
  // Changes the patient's row of the ledger as it stands now, so that values of another station
  // stay in it, and takes its numbers.
  template <class Change>
  dao::Status Visitkaydet(Change change);
  [[nodiscard]] Analyses hastaninAnalizleri();
  void gridiDoldur(Analyses analyses);
  void gridSatiri(int row, const stores::Analysis& analysis);
  void numaralariYaz(const Analyses& analyses);
  void gridkontrol();
  void satirSecildi();
  void satiriGoster(long number);
  void testSecildi();
  void testBitti();
  [[nodiscard]] std::optional<std::string> katalogdaki(const std::string& name);
  [[nodiscard]] bool testOnaylandi();
  void bugundenBasla();
  void filtreAc();
  void grafikAc();
  void testDuzenleAc();

  // The catalogue opens above this screen and takes the shared snapshot for itself.
  std::string yedek_;
  std::string sonTest_;      // the test that the name field stood for last
  std::string kayitliTest_;  // the test of the stored value on the screen
  // Unit and range came from that test; the user did not type them for one without a range.
  bool aralikTestin_ = false;
  Analyses analizler_;      // in the order of the grid
  std::size_t toplam_ = 0;  // values of the patient, with those that a filter leaves out
};

}  // namespace exam
