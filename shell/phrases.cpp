#include "shell/phrases.h"

#include <array>

namespace shell {

namespace {

struct Row {
  Phrase which;
  const char* english;
  const char* turkish;
};

constexpr auto phraseRows = std::to_array<Row>({
    {Phrase::NotInThisVersion, " is not part of this version yet.", " bu sürümde henüz yok."},
    {Phrase::StateSaved, "saved ", "kaydedildi "},
    {Phrase::StateChanged, "changed, not saved", "değişti, kaydedilmedi"},
    {Phrase::StateNotSaved, "could not be saved: ", "kaydedilemedi: "},
    {Phrase::PatientCount, "patients: ", "hasta: "},
    {Phrase::NoNameFound, "no patient begins with this name", "bu isimle başlayan hasta yok"},
    {Phrase::NobodyExamined, "Nobody was examined on this day.", "Bu tarihte muayene yok."},
    {Phrase::AboutText, "Patient records of the practice", "Muayenehane hasta kayıtları"},
    {Phrase::ChoosePhotograph, "Choose photograph", "Fotoğraf seç"},
    {Phrase::LetterheadPicture, "Letterhead picture", "Başlık resmi"},
    {Phrase::LetterheadIcon, "Letterhead icon", "Başlık ikonu"},
    {Phrase::OpeningFailed, "The practice could not be opened completely. ",
     "Kayıtlar tam olarak açılamadı. "},
    {Phrase::StoreFailed, "The change was not stored: ", "Değişiklik saklanamadı: "},
    {Phrase::RecordGone, "this record was deleted at another station",
     "bu kayıt başka bir istasyonda silinmiş"},
    {Phrase::NameTaken, "another station has just stored a patient of this name",
     "başka bir istasyon bu isimde bir hasta kaydetti"},
    {Phrase::Stop, "Stop", "Durdur"},
    {Phrase::NoRecordsYet, "No records yet. What you write and save is listed here by its date.",
     "Henüz kayıt yok. Yazıp kaydettikleriniz burada tarihiyle durur."},
    {Phrase::HiddenCount, "hidden: ", "gizli: "},
    {Phrase::SaveAllCards, "Save All Cards Anew", "Tüm Kartları Yeniden Kaydet"},
    {Phrase::CardsSaved, "Cards saved anew: ", "Yeniden kaydedilen kart: "},
    {Phrase::CardsFromPregnancies, "Add Cards from Pregnancies", "Gebeliklerden Kart Ekle"},
    {Phrase::CardsAdded, "Cards added: ", "Eklenen kart: "},
    {Phrase::CardsPassedOver, "Cards that could not be saved: ", "Kaydedilemeyen kart: "},
    {Phrase::StationNumber, "station ", "istasyon "},
    {Phrase::WithoutRegister,
     "alone, without a station register: ", "tek başına, istasyon kaydı yok: "},
    {Phrase::CareElsewhere,
     "Another station is maintaining the files.\nOK tries again, Cancel leaves the program closed.",
     "Başka bir istasyonda dosya bakımı yapılıyor.\nTamam yeniden dener, İptal programı kapalı "
     "bırakır."},
    {Phrase::StoresLocked,
     "The records are locked by another station or another program.\nOK tries again. Cancel opens "
     "the program without them; it goes on trying by itself.",
     "Kayıtlar başka bir istasyon ya da program tarafından kilitli.\nTamam yeniden dener. İptal "
     "programı kayıtlar olmadan açar; program kendiliğinden denemeyi sürdürür."},
    {Phrase::ForeignObjects,
     "%1 holds things that this program never puts there (%2). They are not run, and the records "
     "can "
     "be used. Ask whoever looks after the computers who changed the file.",
     "%1 dosyasında bu programın koymadığı şeyler var (%2). Bunlar çalıştırılmıyor ve kayıtlar "
     "kullanılabiliyor. Dosyayı kimin değiştirdiğini bilgisayarlara bakan kişiye sorun."},
    {Phrase::CareNeedsAlone,
     "Nothing was done to the files: other stations are running.\nClose the program there and "
     "start "
     "the maintenance again.",
     "Dosyalara dokunulmadı: başka istasyonlar açık.\nOralarda programı kapatıp bakımı yeniden "
     "başlatınız."},
    {Phrase::CareUnsure,
     "Nothing was done to the files: it cannot be told whether other stations are running.\n",
     "Dosyalara dokunulmadı: başka istasyonların açık olup olmadığı bilinemiyor.\n"},
    {Phrase::CareChecking, ": checking", ": denetleniyor"},
    {Phrase::CareCompacting, ": compacting", ": sıkıştırılıyor"},
    {Phrase::CareSound, ": sound, compacted, ", ": sağlam, sıkıştırıldı, "},
    {Phrase::CareMended, ": damage found and mended, ", ": hasar bulundu ve giderildi, "},
    {Phrase::CareLeft, ": left as it was: ", ": olduğu gibi bırakıldı: "},
    {Phrase::NobodyFound, "Nobody fits all filters. Go back and clear some of them.",
     "Tüm filtrelere uyan hasta yok. Geri dönüp bazı filtreleri boşaltınız."},
    {Phrase::SearchStopped, "stopped", "durduruldu"},
    {Phrase::ClearFilters, "Clear", "Temizle"},
    {Phrase::PrinterName, "Printer", "Yazıcı"},
    {Phrase::SaveAsPdf, "Save as a PDF file", "PDF dosyası olarak kaydet"},
    {Phrase::NoPrinter, "Nothing can be printed here.", "Burada yazdırma yapılamıyor."},
    {Phrase::View, "View", "Görünüm"},
    {Phrase::ZoomIn, "Zoom in", "Büyüt"},
    {Phrase::ZoomOut, "Zoom out", "Küçült"},
    {Phrase::FitWidth, "Page width", "Sayfa genişliği"},
    {Phrase::PageNumber, "Page", "Sayfa"},
    {Phrase::SampleHeading, "Dr. Ayşe Demir\nInternal Medicine",
     "Dr. Ayşe Demir\nİç Hastalıkları Uzmanı"},
    {Phrase::SamplePatient, "Zeynep Yılmaz", "Zeynep Yılmaz"},
    {Phrase::SampleText, "The text of the report stands here,\nline below line.",
     "Raporun metni burada yer alır,\nsatır satır."},
    {Phrase::SampleSignature, "Your sincerely\nDr. Ayşe Demir", "Saygılarımla\nDr. Ayşe Demir"},
    {Phrase::ReportCut, "(the rest did not fit on this page)", "(devamı bu sayfaya sığmadı)"},
    {Phrase::ReportLong,
     "The text does not fit on one page. Go on over more pages?\nNo keeps the first page alone.",
     "Metin bir sayfaya sığmıyor. Başka sayfalarda sürdürülsün mü?\nHayır, yalnız ilk sayfayı "
     "alır."},
    {Phrase::NoTests, "No tests yet. Type a name and save it.",
     "Henüz test yok. Bir isim yazıp kaydedin."},
    {Phrase::NoResults, "No results. Choose a test, write its result and save it.",
     "Sonuç yok. Bir test seçip sonucunu yazın ve kaydedin."},
    {Phrase::PrescribeUnknown, "“%1” is not in the list of drugs. Prescribe it all the same?",
     "“%1” ilaç listesinde yok. Yine de reçeteye yazılsın mı?"},
    {Phrase::PrescribeNameAlone,
     "“%1” is not in the list of drugs, and the dosage on the screen is that of “%2”.\nPrescribe "
     "the name alone, without a dosage?",
     "“%1” ilaç listesinde yok; ekrandaki kullanım “%2” için.\nReçeteye kullanım olmadan yalnız "
     "isim yazılsın mı?"},
    {Phrase::RequestUnknown, "“%1” is not in the list of tests. Request it all the same?",
     "“%1” test listesinde yok. Yine de istensin mi?"},
    {Phrase::ResultUnknown, "“%1” is not in the list of tests. Store its result all the same?",
     "“%1” test listesinde yok. Sonuç yine de kaydedilsin mi?"},
    {Phrase::StoreUnknown, "“%1” is not in the list. Store it there?",
     "“%1” listede yok. Listeye kaydedilsin mi?"},
    {Phrase::ShowInstead, "Show “%1” in place of what was typed?",
     "Yazılanların yerine “%1” gösterilsin mi?"},
    {Phrase::Trend, "Course of a test", "Testin seyri"},
    {Phrase::NoTrend, "There is no value to draw.", "Çizilecek değer yok."},
    {Phrase::NotDrawnWithoutNumber, "not drawn, without a number: ", "çizilmedi, sayı değil: "},
    {Phrase::NotDrawnOtherUnit, "not drawn, in another unit: ", "çizilmedi, birimi farklı: "},
    {Phrase::AllResults, "All results", "Tüm sonuçlar"},
    {Phrase::PictureHint,
     "Choose a picture to see it here; a double click on a place opens a file.",
     "Görmek için bir resim seçin; bir yere çift tıklamak dosya açar."},
    {Phrase::PictureMissing, "The file is not there.", "Dosya yerinde yok."},
    {Phrase::PictureFolder, "This is no ordinary file.", "Bu, sıradan bir dosya değil."},
    {Phrase::PictureEmpty, "The file is empty.", "Dosya boş."},
    {Phrase::PictureRefused, "The file may not be read.", "Dosyayı okuma izni yok."},
    {Phrase::NotAPicture, "The file is not a picture.", "Dosya bir resim değil."},
    {Phrase::PictureDamaged, "The picture is damaged.", "Resim bozuk."},
    {Phrase::PictureTooLarge, "The picture has too many pixels to be shown.",
     "Resim gösterilemeyecek kadar büyük."},
    {Phrase::PicturePathTooLong,
     "The name of the file with its folders is too long. Longest, in characters: ",
     "Dosyanın klasörleriyle birlikte adı çok uzun. En çok karakter: "},
    {Phrase::Reply, "Reply", "Yanıtla"},
    {Phrase::MessageNotSent, "The message was not sent. Discard it?",
     "Mesaj gönderilmedi. Vazgeçilsin mi?"},
    {Phrase::CharactersReplaced, "The file cannot hold these characters. In their place go:",
     "Dosya bu karakterleri tutamıyor. Yerlerine yazılacak olanlar:"},
    {Phrase::TextsCut,
     "This does not fit and would be left out:", "Şu bölümler sığmıyor, yazılmayacak:"},
    {Phrase::SendMessageSo, "Send the message like this?", "Mesaj böyle gönderilsin mi?"},
    {Phrase::FontsNotKept,
     "The file has no room for the names of these fonts. They hold until the window is closed:",
     "Dosyada şu yazı tiplerinin adlarına yer yok. Pencere kapanana kadar geçerliler:"},
    {Phrase::KeepTextSo, "Keep it like this?", "Böyle saklansın mı?"},
    {Phrase::MessageRoom, "characters left: ", "kalan karakter: "},
    {Phrase::MessageTooLong, "characters too many: ", "fazla karakter: "},
    {Phrase::MessageCount, "messages: ", "mesaj: "},
    {Phrase::UnreadCount, "unread: ", "okunmamış: "},
    {Phrase::NoMessages, "No messages. Press F5 to look again.",
     "Mesaj yok. Yeniden bakmak için F5'e basın."},
    {Phrase::FeesToConvert,
     "About %1 amounts would be divided by 1,000,000: all that are above 10,000, even where they "
     "are in new lira already.%2\n\nThe largest: %3 becomes %4\nThe smallest: %5 becomes %6\n"
     "With a decimal point, as amounts in new lira have: %7\n\nThis cannot be taken back. Convert "
     "them?",
     "Yaklaşık %1 tutar 1.000.000'a bölünecek: 10.000'in üzerindekilerin hepsi, YTL olsalar "
     "bile.%2\n\nEn büyüğü: %3, yenisi %4\nEn küçüğü: %5, yenisi %6\nYTL tutarlarındaki gibi "
     "ondalık noktası olanlar: %7\n\nBu işlem geri alınamaz. Dönüştürülsün mü?"},
    {Phrase::BackupBeforeFees,
     "Make a backup into %1 first?\n\nNo converts without a backup; Esc converts nothing.",
     "Önce %1 klasörüne yedek alınsın mı?\n\nHayır yedek almadan dönüştürür, Esc hiçbir şeyi "
     "dönüştürmez."},
    {Phrase::BackupFailed, "The backup was not made; an older one stays as it was.",
     "Yedek alınamadı; varsa eski yedek olduğu gibi duruyor."},
    {Phrase::BackupStopped, "The backup was stopped; an older one stays as it was.",
     "Yedekleme durduruldu; varsa eski yedek olduğu gibi duruyor."},
    {Phrase::FilesBackup, "Pictures and documents", "Resimler ve belgeler"},
    {Phrase::FilesBackupStopped,
     "The records are backed up. Copying pictures and documents was stopped; the next backup goes "
     "on from there.",
     "Kayıtların yedeği alındı. Resim ve belgelerin kopyalanması durduruldu; sonraki yedekleme "
     "kaldığı yerden sürer."},
    {Phrase::FilesBackupFailed, "The records are backed up, the pictures and documents are not.",
     "Kayıtların yedeği alındı, resim ve belgelerinki alınamadı."},
    {Phrase::FilesLeftOut,
     "The records are backed up. %1 pictures or documents could not be copied: %2",
     "Kayıtların yedeği alındı. %1 resim veya belge kopyalanamadı: %2"},
    {Phrase::PicturesElsewhere,
     "%1 pictures of the records lie outside the folders Image and Documents; they are not in the "
     "backup.",
     "Kayıtlardaki %1 resim Image ve Documents klasörlerinin dışında duruyor; yedekte yoklar."},
    {Phrase::FilesInBackup, "Pictures and documents: ", "Resimler ve belgeler: "},
    {Phrase::CloseWindow, "Close", "Kapat"},
    {Phrase::LeaveWithoutBackup, "Close the program without a backup?",
     "Program yedek almadan kapatılsın mı?"},
    {Phrase::BackupHint,
     "Open the folder that is to hold the backup, best on another disk. The copies are checked "
     "before they replace older ones. Pictures, documents and letterhead go along. Other stations "
     "go on working meanwhile.",
     "Yedeğin duracağı klasörü açın; en iyisi başka bir disktir. Kopyalar denetlenmeden "
     "eskilerinin yerine geçmez. Resimler, belgeler ve başlık da kopyalanır. Bu sırada öbür "
     "istasyonlar çalışmayı sürdürür."},
    {Phrase::BackupNotIntoData, "This folder holds the records themselves. Open another one.",
     "Bu klasörde kayıtların kendisi duruyor. Başka bir klasör açın."},
    {Phrase::Place, "Place", "Yer"},
    {Phrase::FoldersInIt, "Folders in it", "İçindeki klasörler"},
    {Phrase::LastBackup, "Backup in this folder", "Bu klasördeki yedek"},
    {Phrase::NoBackupYet, "none yet", "henüz yok"},
    {Phrase::FolderNotEmpty, "The folder is not empty, so it stays.",
     "Klasör boş olmadığı için silinmedi."},
    {Phrase::FolderRefused, "This cannot be done with the folder: ", "Klasörde bu yapılamıyor: "},
    {Phrase::AskFolderName, "Write the name of the folder to be made",
     "Yaratmak istediğiniz klasörü yazınız"},
    {Phrase::AskRemoval, " - remove it?", " silinsin mi?"},
    {Phrase::RestoreFailed, "Nothing was restored; the records stay as they were.",
     "Geri yükleme yapılmadı; kayıtlar olduğu gibi duruyor."},
    {Phrase::RestoreStopped, "The restore was stopped; the records stay as they were.",
     "Geri yükleme durduruldu; kayıtlar olduğu gibi duruyor."},
    {Phrase::RestoreWantsAlone,
     "Another station is using the records. Close the program there, then restore.",
     "Kayıtları başka bir istasyon kullanıyor. Önce orada programı kapatın."},
    {Phrase::RestoreFiles,
     "Pictures, documents and letterhead of the backup: %1 are missing here, %2 are older here.\n"
     "Bring them back?",
     "Yedekteki resimler, belgeler ve başlık: %1 tanesi burada yok, %2 tanesi burada daha eski.\n"
     "Geri getirilsin mi?"},
    {Phrase::RestoreNewerFiles,
     "%1 files were changed here after they were backed up, among them %2.\nReplace them by those "
     "of the backup?",
     "%1 dosya yedeklendikten sonra burada değişmiş; biri: %2.\nYedektekilerle değiştirilsin mi?"},
    {Phrase::FilesNotRestored, "%1 pictures or documents were not brought back. %2",
     "%1 resim veya belge geri getirilemedi. %2"},
    {Phrase::RestoreDrill, "Test the Backup", "Yedeği Dene"},
    {Phrase::DrillSound,
     "The backup of %1 is sound. It would bring back %2 patients and %3 records; last examination: "
     "%4. Pictures and documents: %5.",
     "%1 tarihli yedek sağlam. Geri yüklenirse: %2 hasta, %3 kayıt; son muayene: %4. Resim ve "
     "belge: %5."},
    {Phrase::DrillFilesDamaged,
     "The backup of %1 is not whole. It would bring back %2 patients and %3 records; last "
     "examination: %4. Pictures and documents: %5; %6 of them are damaged, and %7 more are "
     "missing.\nBack up into an empty folder.",
     "%1 tarihli yedek eksiksiz değil. Geri yüklenirse: %2 hasta, %3 kayıt; son muayene: %4. Resim "
     "ve belge: %5; bunların %6 tanesi bozuk, ayrıca %7 tanesi eksik.\nBoş bir klasöre yedek "
     "alın."},
    {Phrase::DrillFailed, "The backup of %1 cannot be restored. %2",
     "%1 tarihli yedek geri yüklenemez. %2"},
    {Phrase::NothingFound, "none", "yok"},
    {Phrase::NoFile, "A file or folder is not there.", "Bir dosya ya da klasör yerinde yok."},
    {Phrase::NoRoom, "There is no room left on the disk.", "Diskte yer kalmadı."},
    {Phrase::NotWritable, "The file or its folder cannot be written.",
     "Dosyaya ya da klasörüne yazma izni yok."},
    {Phrase::FileDamaged, "A file is damaged.", "Bir dosya bozuk."},
    {Phrase::OtherFile, "A file is not the one that its name says.",
     "Bir dosya, adının gösterdiği dosya değil."},
    {Phrase::FileInUse, "A file is in use; please try again.",
     "Bir dosya kullanılıyor; yeniden deneyin."},
    {Phrase::AlreadyThere, "There is one of this name already.",
     "Bu isimde bir kayıt ya da dosya zaten var."},
    {Phrase::NotOpen, "The records are not open.", "Kayıtlar açık değil."},
    {Phrase::TextTooLong, "A text is too long to be stored.",
     "Bir metin saklanamayacak kadar uzun."},
    {Phrase::FieldEmpty, "A field that must have a text is empty.",
     "Boş bırakılamayacak bir alan boş."},
    {Phrase::FieldRefuses, "A field does not take what was written in it.",
     "Bir alan, içine yazılanı kabul etmiyor."},
    {Phrase::OnlyToRead, "The records can be read, but nothing can be changed. ",
     "Kayıtlar okunabiliyor ama değiştirilemiyor. "},
    {Phrase::CloseUnsaved, "The record was not saved. Close the window and lose what was typed?",
     "Kayıt yapılmadı. Pencere kapatılıp yazılanlardan vazgeçilsin mi?"},
    {Phrase::LoseTyped, "What was typed is not saved and will be lost. Go on?",
     "Yazılanlar kaydedilmedi ve kaybolacak. Sürdürülsün mü?"},
    {Phrase::SaveNeeds, "needed to save: ", "kaydetmek için gerekli: "},
    {Phrase::NothingToSave, "nothing to save", "kaydedilecek değişiklik yok"},
    {Phrase::NameLockOpen, "names unlocked", "isim kilidinin açılması"},
    {Phrase::BesideVitalSigns, "an entry beside the vital signs",
     "vital bulguların yanında bir bilgi"},
    {Phrase::PrintWizard, "Print wizard", "Yazdırma sihirbazı"},
    {Phrase::PageItems, "Layout of the page", "Sayfa düzeni"},
    {Phrase::PrintedItems, "Printed", "Yazdırılacaklar"},
    {Phrase::Patients, "Patients", "Hastalar"},
    {Phrase::PerMinute, "/min", "/dk"},
    {Phrase::ThisScreen, "This screen", "Bu ekran"},
    {Phrase::LanguageBox, "Language", "Dil"},
    {Phrase::ToolbarWords, "Words on the buttons", "Düğmelerde yazı"},
    {Phrase::Calendar, "Calendar", "Takvim"},
    {Phrase::HiddenNames, "Hidden names", "Gizli isimler"},
    {Phrase::ShowHidden, "Show hidden patients (password)", "Gizli hastaları göster (şifre)"},
    {Phrase::LockHidden, "Hide hidden patients again", "Gizli hastaları yeniden gizle"},
    {Phrase::ChooseHidden, "Choose hidden patients", "Gizlenecek hastaları seç"},
    {Phrase::HiddenAsked,
     "This password shows the hidden patients until they are hidden again or the program is "
     "closed.",
     "Bu şifre gizli hastaları gösterir; yeniden gizlenene ya da program kapanana kadar "
     "görünürler."},
    {Phrase::HiddenNotSet,
     "There is no password for hidden patients yet. The one that you choose now will be asked for "
     "whenever they are to be shown.",
     "Gizli hastalar için henüz şifre yok. Şimdi seçeceğiniz şifre, gizli hastalar gösterilmek "
     "istendiğinde sorulacak."},
    {Phrase::NotAPlainFile,
     "There is a link, a folder or a device where a file should be. It was not touched.",
     "Bir dosyanın yerinde bağlantı, klasör ya da aygıt var. Ona dokunulmadı."},
    {Phrase::FileTooLarge, "A file is far larger than it can be, and was not read.",
     "Bir dosya olabileceğinden çok daha büyük; okunmadı."},
    {Phrase::WorkFailed, "The computer could not carry out the work.",
     "Bilgisayar işi yerine getiremedi."},
    {Phrase::StoreVanished, "%1 is not there, although records were kept here.",
     "%1 yerinde yok; oysa burada kayıtlar tutuluyordu."},
    {Phrase::StoreEmptied, "%1 is empty or belongs to another program.",
     "%1 boş ya da başka bir programa ait."},
    {Phrase::StoreDamaged, "%1 is damaged and cannot be opened.", "%1 bozuk ve açılamıyor."},
    {Phrase::StoreShrunken, "%1 holds %2 records; its backup holds %3.",
     "%1 dosyasında %2 kayıt var; yedeğinde %3 kayıt var."},
    {Phrase::OfferBackup,
     "The backup of %1 holds %2 records (%3).\nPut it in place? The file that stands there is kept "
     "under another name.",
     "%1 tarihli yedekte %2 kayıt var (%3).\nYerine konsun mu? Şimdiki dosya başka bir adla "
     "saklanır."},
    {Phrase::NoBackupFound, "No backup was found. The program begins with an empty store.",
     "Yedek bulunamadı. Program boş bir dosyayla başlıyor."},
    {Phrase::StoreKeptAs, "The file that stood there was kept as %1.",
     "Oradaki dosya %1 adıyla saklandı."},
    {Phrase::StoresInUse,
     "Another station is running, so nothing was changed. Close the program everywhere and start "
     "it "
     "again.",
     "Başka bir istasyon çalıştığı için hiçbir şey değiştirilmedi. Programı her yerde kapatıp "
     "yeniden "
     "başlatın."},
    {Phrase::FewerThanBackup, "%1 holds %2 records; the backup that would be replaced holds %3.",
     "%1 dosyasında %2 kayıt var; yerine yazılacak yedekte %3 kayıt var."},
    {Phrase::ReplaceFuller,
     "Replace that backup? No keeps it and writes the new one beside it, into a folder with "
     "today's date.",
     "O yedeğin yerine yazılsın mı? Hayır derseniz o yedek kalır, yenisi yanına, bugünün tarihini "
     "taşıyan bir klasöre yazılır."},
    {Phrase::WrittenBeside, "The new backup was written to %1.",
     "Yeni yedek %1 klasörüne yazıldı."},
    {Phrase::FoldersAreLinks,
     "The data of the practice lie behind a link. Everything goes on working; if nobody of the "
     "practice has set this up, ask who did. This is said once.",
     "Muayenehanenin verileri bir bağlantının arkasında duruyor. Her şey çalışmaya devam eder; "
     "bunu muayenehaneden kimse kurmadıysa kimin kurduğunu sorun. Bu bir kez söylenir."},
    {Phrase::MessageStaysHere, "The message was not sent. It stays in its window.\n",
     "Mesaj gönderilmedi. Penceresinde duruyor.\n"},
    {Phrase::NameNotOffered, "The message was sent. Its names will not be offered the next time.\n",
     "Mesaj gönderildi. İsimler bir dahaki sefere listede çıkmayacak.\n"},
    {Phrase::FontsUnread,
     "The fonts and templates of the printed pages cannot be read, and changes of them will not "
     "be kept.\n",
     "Basılan sayfaların yazı tipleri ve şablonları okunamıyor; değişiklikleri saklanmayacak.\n"},
    {Phrase::MessagesNotRead,
     "Messages between the stations can be neither read nor sent. Everything else works.\n",
     "İstasyonlar arası mesajlar okunamıyor ve gönderilemiyor. Gerisi çalışıyor.\n"},
    {Phrase::NamesNotRead, "The names for messages cannot be offered or kept; they can be typed.\n",
     "Mesajlar için isimler listelenemiyor ve saklanamıyor; elle yazılabilir.\n"},
    {Phrase::LetterheadNotRead,
     "The text of the letterhead cannot be read. Pages come out without it; the file stays as it "
     "is.\n",
     "Başlığın yazısı okunamıyor. Sayfalar onsuz basılır; dosya olduğu gibi duruyor.\n"},
    {Phrase::ReplaceLetterhead,
     "The letterhead's file could not be read. What it holds is lost when this text takes its "
     "place. Replace it?",
     "Başlık dosyası okunamamıştı. Bu yazı onun yerine geçerse içindekiler kaybolur. "
     "Değiştirilsin mi?"},
    {Phrase::PasswordLost,
     "This user's settings were lost or damaged, and a password with them. What it kept closed "
     "stays closed.\nIf there is a copy of the settings, put it back into their folder. To go on "
     "without the old passwords, remove this file and start again:\n",
     "Bu kullanıcının ayarları kayboldu ya da bozuldu; bir şifre de onlarla gitti. Şifrenin "
     "kapattığı kapalı kalır.\nAyarların bir kopyası varsa klasörüne geri koyun. Eski şifreler "
     "olmadan devam etmek için şu dosyayı silip yeniden başlatın:\n"},
    {Phrase::SettingsMended,
     "Some of your settings could not be read; the others are used. Everything that was there is "
     "kept.\n",
     "Ayarlarınızın bir kısmı okunamadı; kalanı kullanılıyor. Eskiden ne varsa saklandı.\n"},
    {Phrase::SettingsNotRead,
     "Your settings could not be read. The program works with the usual ones.\n",
     "Ayarlarınız okunamadı. Program alışılmış ayarlarla çalışıyor.\n"},
});

}  // namespace

std::string phrase(Station& istasyon, Phrase which) {
  static_assert(
      [] {
        for (std::size_t i = 0; i < phraseRows.size(); ++i) {
          if (static_cast<std::size_t>(phraseRows[i].which) != i) return false;
        }
        return true;
      }(),
      "the rows stand in the order of the enumerators");
  const Row& row = phraseRows.at(static_cast<std::size_t>(which));
  return istasyon.turkce() ? row.turkish : row.english;
}

}  // namespace shell
