#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <tuple>

#include "platform/files/name_list.h"
#include "scheduling/frm_ayar.h"
#include "scheduling/frm_mesajlar.h"
#include "scheduling/frm_msg_gon.h"
#include "scheduling/message_watch.h"
#include "tests/support/practice.h"

namespace {

using namespace scheduling;
using files::MessageRecord;
using support::Desk;

template <class Screen>
void add(shell::ScreenDirectory& screens, std::string_view name) {
  screens.add(name, [](shell::Station& station) { return std::make_unique<Screen>(station); });
}

struct Messages : testing::Test {
  Messages() {
    std::filesystem::create_directories(folder / "Data");
    desk.station.ayarYaz("msg address", "İbrahim");
    add<FrmMsgGon>(desk.screens, "Frmmsggon");
    add<FrmAyar>(desk.screens, "frmayar");
  }

  void receive(std::string_view addressee, std::string_view subject,
               std::string_view sent = "22.11.2026 09:30") {
    MessageRecord record;
    record.sender = "Ayşe";
    record.addressee = addressee;
    record.subject = subject;
    record.sent = sent;
    record.text = "Bir\r\niki";
    record.isNew = 1;
    ASSERT_TRUE(files::sendMessage(mesajDosyasi(desk.station), record));
  }
  MessageRecord kept(std::size_t at) {
    return (*files::readMessages(mesajDosyasi(desk.station)))[at].record;
  }
  static std::vector<std::string> subjects(const FrmMesajlar& board) {
    std::vector<std::string> column;
    for (int row = 1; row < board.msgrid1.rows(); ++row)
      column.push_back(board.msgrid1.TextMatrix(row, 1));
    return column;
  }
  static bool isBold(const FrmMesajlar& board, int row) {
    return board.msgrid1.cell(row, 0).emphasis == forms::Emphasis::Strong;
  }

  support::TemporaryFolder folder;
  Desk desk{folder.path()};
};

using Subjects = std::vector<std::string>;

TEST_F(Messages, ArriveAtTheirAddresseeInAnyCaseAndInEveryView) {
  receive("ibrahim", "dün", "21.11.2026 17:00");
  receive("İBRAHİM  ", "bugün");
  receive("Ibrahim", "başkası");
  ASSERT_TRUE(files::changeMessages(mesajDosyasi(desk.station),
                                    std::array{files::Message{1, kept(0)}},
                                    [](MessageRecord& record) { record.isRead = 1; }));
  ASSERT_TRUE(files::changeMessages(mesajDosyasi(desk.station),
                                    std::array{files::Message{2, kept(1)}},
                                    [](MessageRecord& record) { record.isNew = 0; }));
  FrmMesajlar board(desk.station);
  board.Load();
  using Case = std::tuple<forms::OptionButton*, const char*, Subjects>;
  for (const auto& [option, title, shown] :
       {Case{&board.optyeni, "Yeni Mesajlar", {"dün"}},
        Case{&board.optokunmamış, "Okunmamış Mesajlar", {"bugün"}},
        Case{&board.optgünlük, "Günlük Mesajlar", {"bugün"}},
        Case{&board.opttümü, "Tüm Mesajlar", {"dün", "bugün"}}}) {
    option->setValue(true);
    EXPECT_EQ(subjects(board), shown) << title;
    EXPECT_EQ(board.caption(), title);
  }
  EXPECT_TRUE(isBold(board, 1));
  EXPECT_FALSE(isBold(board, 2));
  desk.host.modal["frmayar"] = [](forms::Form& form) {
    auto& settings = dynamic_cast<FrmAyar&>(form);
    settings.optyeni.setValue(true);
    settings.buttamam.press();
  };
  board.mnuayar.press();
  EXPECT_EQ(subjects(board), Subjects{"dün"});
  EXPECT_EQ(board.caption(), "Yeni Mesajlar");
}

TEST_F(Messages, AreReadByAClickAndSeenOnceTheScreenCloses) {
  receive("İbrahim", "bir");
  receive("İbrahim", "iki");
  FrmMesajlar board(desk.station);
  board.Load();
  EXPECT_FALSE(board.mnusil.enabled());
  board.msgrid1.choose({1, 0});
  EXPECT_EQ(board.txtmesaj.text(), "Bir\r\niki");
  EXPECT_EQ(board.lblsırano.caption(), "1");
  EXPECT_TRUE(board.mnusil.enabled() && board.tbToolBar.button("sil")->enabled);
  EXPECT_EQ(kept(0).isRead, 1);
  EXPECT_EQ(kept(1).isRead, 0);
  EXPECT_EQ(kept(1).isNew, 1);
  EXPECT_FALSE(isBold(board, 1));
  board.Unload();
  EXPECT_EQ(kept(1).isRead, 0);
  EXPECT_EQ(kept(1).isNew, 0);
}

TEST_F(Messages, ComeInWhileTheScreenIsOpen) {
  receive("İbrahim", "ilk");
  FrmMesajlar board(desk.station);
  board.Load();
  receive("İbrahim", "ikinci");
  receive("Ayşe", "başkası");
  for (int tick = 0; tick < 9; ++tick) board.Timer1.Tick();
  EXPECT_EQ(subjects(board), Subjects{"ilk"});
  board.Timer1.Tick();
  EXPECT_EQ(subjects(board), (Subjects{"ilk", "ikinci"}));
  EXPECT_EQ(board.msgrid1.Row(), 2);
  EXPECT_EQ(board.txtmesaj.text(), kept(1).text);
  EXPECT_TRUE(isBold(board, 2));
  EXPECT_EQ(kept(1).isRead, 0) << "nobody has gone to it";
  EXPECT_EQ(kept(1).isNew, 1);
  EXPECT_EQ(board.süre.caption(), "0");
  board.msgrid1.Click();
  EXPECT_EQ(kept(1).isRead, 1);
  receive("İbrahim", "ikinci");
  board.mnumesajal.press();
  EXPECT_EQ(subjects(board), (Subjects{"ilk", "ikinci", "ikinci"})) << "sent twice, word for word";
}

TEST_F(Messages, AreSeenOnceAnyViewHasShownThem) {
  receive("İbrahim", "dün", "21.11.2026 17:00");
  receive("Zeynep", "başkası");
  FrmMesajlar board(desk.station);
  board.Load();
  board.optgünlük.setValue(true);
  EXPECT_TRUE(subjects(board).empty());
  board.Unload();
  EXPECT_EQ(kept(0).isNew, 0);
  EXPECT_EQ(kept(1).isNew, 1);
}

TEST_F(Messages, AreThoseOfTheNameThatIsShown) {
  receive("İbrahim", "bir");
  receive("Zeynep", "iki");
  FrmMesajlar board(desk.station);
  board.Load();
  desk.host.modal["Frmmsggon"] = [&](forms::Form&) {
    desk.station.ayarYaz("msg address", "Zeynep");
  };
  board.mnumesajyaz.press();
  EXPECT_EQ(board.Lmsgadres.caption(), "Zeynep");
  EXPECT_EQ(subjects(board), Subjects{"iki"});
}

TEST_F(Messages, AreDeletedOneByOneOrAllAfterAQuestion) {
  for (const char* subject : {"bir", "iki", "üç"}) receive("İbrahim", subject);
  FrmMesajlar board(desk.station);
  board.Load();
  board.msgrid1.choose({2, 0});
  board.mnusil.press();
  EXPECT_EQ(subjects(board), (Subjects{"bir", "üç"}));
  EXPECT_FALSE(board.mnusil.enabled());
  desk.host.expect("Tüm mesajları silmek istiyor musunuz?", host::Answer::No);
  board.mnutümmesajlarısil.press();
  EXPECT_EQ(subjects(board).size(), 2U);
  desk.host.expect("Tüm mesajları silmek istiyor musunuz?", host::Answer::Yes);
  board.mnutümmesajlarısil.press();
  EXPECT_TRUE(subjects(board).empty());
}

TEST_F(Messages, NeedANameOfOnesOwn) {
  receive("", "kimseye");
  desk.station.ayarYaz("msg address", "");
  desk.host.inputs = {"", "  Zeynep "};
  FrmMesajlar board(desk.station);
  board.Load();
  EXPECT_TRUE(subjects(board).empty());
  board.Lmsgadres.DblClick();
  EXPECT_EQ(board.Lmsgadres.caption(), "Zeynep");
  EXPECT_EQ(desk.station.ayar("msg address"), "Zeynep");
}

TEST_F(Messages, AreSentAndTheirNamesKept) {
  receive("İbrahim", "soru");
  FrmMesajlar board(desk.station);
  board.Load();
  board.msgrid1.choose({1, 0});
  desk.host.modal["Frmmsggon"] = [&](forms::Form& form) {
    auto& writing = dynamic_cast<FrmMsgGon&>(form);
    EXPECT_EQ(writing.ComKimden.text(), "İbrahim");
    EXPECT_EQ(writing.ComKime.text(), "Ayşe");
    EXPECT_EQ(writing.txtkonu.text(), "Re: soru");
    writing.ComKime.setText(" ");
    EXPECT_FALSE(writing.Butgönder.enabled());
    writing.ComKime.setText("Ayşe");
    writing.txtmesaj.setText(std::string(240, 'a') + "\r\n" + std::string(20, 'b'));
    desk.host.expect("Vazgeçilsin mi?", host::Answer::No);
    EXPECT_FALSE(writing.QueryUnload());
    desk.host.expect("Mesaj: \"…bbbbbbbbbbbb\" (12)", host::Answer::No);
    writing.Butgönder.press();
    EXPECT_EQ(desk.host.asked.back().stake, host::Stake::Existing) << "Enter sends no cut text";
    EXPECT_TRUE(desk.host.closed.empty()) << "what was typed is still there";
    desk.host.expect("sığmıyor", host::Answer::Yes);
    writing.Butgönder.press();
  };
  board.mnuyanıtla.press();
  EXPECT_EQ(desk.host.closed, std::vector<std::string>{"Frmmsggon"});
  const MessageRecord sent = kept(1);
  EXPECT_EQ(sent.addressee, "Ayşe");
  EXPECT_EQ(sent.sent, "22.11.2026 14:05");
  EXPECT_EQ(sent.text.size(), 250U);
  EXPECT_EQ(sent.isNew, 1);
  EXPECT_EQ(*files::readNames(folder / "Data/List.dat"), (Subjects{"İbrahim", "Ayşe"}));
}

TEST_F(Messages, ThatNobodyWroteAreShownAsText) {
  MessageRecord record;
  for (char c = 1; c > 0; ++c) record.text += c;
  record.sender = record.subject = std::string("\a\t\n\x7F\xC2\x9D", 6);
  record.addressee = "İbrahim";
  ASSERT_TRUE(files::sendMessage(mesajDosyasi(desk.station), record));
  FrmMesajlar board(desk.station);
  board.Load();
  const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == 0x7F; };
  for (int column = 0; column < board.msgrid1.cols(); ++column)
    EXPECT_TRUE(std::ranges::none_of(board.msgrid1.TextMatrix(1, column), isControl)) << column;
  EXPECT_EQ(board.msgrid1.TextMatrix(1, 1), "     ");
  board.msgrid1.choose({1, 0});
  std::string shown = board.txtmesaj.text();
  EXPECT_EQ(std::ranges::count_if(shown, isControl), 3) << "the tab and the ends of lines";
}

TEST_F(Messages, InAFileThatIsALinkAreNeitherReadNorSentAndThatIsSaid) {
  mesajlarOkunurMu(desk.station);
  EXPECT_TRUE(desk.host.errors.empty() && std::filesystem::is_empty(folder / "Data"));
  std::ofstream(folder / "mine") << "mine";
  for (const char* name : {"Data/message.dat", "Data/List.dat"})
    std::filesystem::create_symlink(folder / "mine", folder / name);
  mesajlarOkunurMu(desk.station);
  ASSERT_EQ(desk.host.errors.size(), 2U);
  EXPECT_NE(desk.host.errors[0].text().find("message.dat"), std::string::npos);
  EXPECT_NE(desk.host.errors[1].text().find("List.dat"), std::string::npos);
  FrmMsgGon writing(desk.station);
  writing.Load();
  writing.ComKime.setText("Ayşe");
  writing.txtkonu.setText("soru");
  writing.Butgönder.press();
  ASSERT_EQ(desk.host.errors.size(), 3U);
  EXPECT_NE(desk.host.errors[2].text().find("gönderilmedi"), std::string::npos);
  EXPECT_TRUE(desk.host.closed.empty()) << "what was typed is still there";
  EXPECT_EQ(MessageWatch(desk.station).look(), std::nullopt);
  std::filesystem::remove(folder / "Data/message.dat");
  writing.Butgönder.press();
  ASSERT_EQ(desk.host.errors.size(), 4U);
  EXPECT_NE(desk.host.errors[3].text().find("İsimler"), std::string::npos);
  EXPECT_EQ(std::filesystem::file_size(folder / "mine"), 4U);
}

// Whether the desk of that name sees what was sent to the other one.
TEST_F(Messages, ReachNamesThatTheFileCannotWrite) {
  const std::string wide = "Prof. Dr. Abdurrahman Gazi Büyükkarabacakoğlu";
  const struct {
    const char* own;
    std::string sentTo;
    bool arrives;
  } cases[] = {{"Łukasz", "Łukasz", true},
               {"Łukasz", "łukasz", true},
               {"Łukasz", "Lukasz", true},
               {"Łukasz", "Đukasz", false},
               {"Иван", "Иван", true},
               {"Иван", "Олег", false},
               {wide.c_str(), wide, true},
               {"S\u0327ule", "Şule", true},
               {"İbrahim\u200B", "İbrahim", true}};
  for (const auto& c : cases) {
    ASSERT_TRUE(files::deleteAllMessages(mesajDosyasi(desk.station)));
    desk.station.ayarYaz("msg address", c.own);
    receive(c.sentTo, "soru");
    EXPECT_EQ(mesajlar(desk.station, MessageView::All)->size(), c.arrives ? 1U : 0U)
        << c.own << " <- " << c.sentTo;
  }
}

TEST_F(Messages, TellWhichCharactersCannotBeSent) {
  FrmMsgGon writing(desk.station);
  writing.Load();
  writing.ComKime.setText("Łukasz");
  writing.txtkonu.setText("RR ≥ 140");
  writing.txtmesaj.setText("K: 3 → 5, 😀");
  desk.host.expect("Ł : L,   ≥ : >=,   → : ->,   😀 : ?", host::Answer::No);
  writing.Butgönder.press();
  EXPECT_EQ(desk.host.asked.back().stake, host::Stake::None) << "Enter sends";
  EXPECT_TRUE(files::readMessages(mesajDosyasi(desk.station))->empty());
  EXPECT_EQ(writing.txtmesaj.text(), "K: 3 → 5, 😀");
  desk.host.expect("Mesaj böyle gönderilsin mi?", host::Answer::Yes);
  writing.Butgönder.press();
  EXPECT_EQ(kept(0).addressee, "Lukasz");
  EXPECT_EQ(kept(0).subject, "RR >= 140");
  EXPECT_EQ(kept(0).text, "K: 3 -> 5, ?");
  EXPECT_EQ(*files::readNames(folder / "Data/List.dat"), (Subjects{"İbrahim", "Lukasz"}));
}

TEST_F(Messages, SayHowMuchRoomTheTextHas) {
  desk.station.ayarYaz("msg address", "Łukasz");
  FrmMsgGon writing(desk.station);
  writing.Load();
  EXPECT_EQ(writing.ComKimden.text(), "Lukasz") << "as those who answer will find it";
  writing.txtmesaj.setText("≥");
  EXPECT_EQ(writing.Lkalan.caption(), "kalan karakter: 248");
  writing.txtmesaj.setText(std::string(253, 'a'));
  EXPECT_EQ(writing.Lkalan.caption(), "fazla karakter: 3");
}

TEST_F(Messages, OpenInTheViewThatWasChosen) {
  FrmAyar settings(desk.station);
  settings.Load();
  EXPECT_TRUE(settings.opttumu.value());
  settings.optokunmamis.setValue(true);
  settings.buttamam.press();
  EXPECT_EQ(desk.station.ayar("optmsgbold"), "True");
  EXPECT_EQ(desk.station.ayar("optmsgall"), "False");
  EXPECT_EQ(secilenGorunum(desk.station).view, MessageView::Unread);
}

TEST_F(Messages, AreNoticedWithoutTheirScreen) {
  MessageWatch watch(desk.station);
  const auto after = [&](int seconds) {
    desk.clock.time.seconds += seconds;
    return watch.look();
  };
  EXPECT_EQ(after(0), 0);
  receive("İbrahim", "bir");
  EXPECT_EQ(after(9), std::nullopt) << "not yet looked again";
  EXPECT_EQ(after(1), 1);
  EXPECT_EQ(after(10), std::nullopt) << "nothing has changed";
  receive("Ayşe", "başkası");
  EXPECT_EQ(after(10), 1);
  desk.station.ayarYaz("msg address", "Zeynep");
  EXPECT_EQ(after(10), 0);
}

}  // namespace
