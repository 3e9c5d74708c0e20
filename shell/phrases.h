// Words of the windows themselves, beside the vocabulary: hints and states that no key of it
// covers.
#pragma once

#include <string>

#include "shell/station.h"

namespace shell {

enum class Phrase {
  NotInThisVersion,  // behind the caption of an entry whose screen is missing
  StateSaved,        // a time follows
  StateChanged,
  StateNotSaved,  // a reason follows
  PatientCount,   // a number follows
  NoNameFound,
  NobodyExamined,
  AboutText,
  ChoosePhotograph,
  LetterheadPicture,
  LetterheadIcon,
  OpeningFailed,
  StoreFailed,
  RecordGone,
  NameTaken,
  Stop,
  NoRecordsYet,
  HiddenCount,  // a number follows
  SaveAllCards,
  CardsSaved,  // a number follows
  CardsFromPregnancies,
  CardsAdded,       // a number follows
  CardsPassedOver,  // a number follows
  StationNumber,    // a number follows
  WithoutRegister,  // a reason follows
  CareElsewhere,
  StoresLocked,
  ForeignObjects,
  CareNeedsAlone,
  CareUnsure,    // a reason follows
  CareChecking,  // a file's name stands in front of this and the rest
  CareCompacting,
  CareSound,  // sizes follow
  CareMended,
  CareLeft,  // a reason follows
  NobodyFound,
  SearchStopped,
  ClearFilters,
  PrinterName,
  SaveAsPdf,
  NoPrinter,
  View,
  ZoomIn,
  ZoomOut,
  FitWidth,
  PageNumber,
  SampleHeading,  // of two lines
  SamplePatient,
  SampleText,
  SampleSignature,  // of two lines
  ReportCut,
  ReportLong,
  NoTests,
  NoResults,
  PrescribeUnknown,    // %1 the name
  PrescribeNameAlone,  // %1 the name, %2 the drug whose dosage is on the screen
  RequestUnknown,      // %1 the name
  ResultUnknown,       // %1 the name
  StoreUnknown,        // %1 the name
  ShowInstead,         // %1 the name
  Trend,
  NoTrend,
  NotDrawnWithoutNumber,  // a number follows
  NotDrawnOtherUnit,      // a number follows
  AllResults,
  PictureHint,
  PictureMissing,
  PictureFolder,
  PictureEmpty,
  PictureRefused,
  NotAPicture,
  PictureDamaged,
  PictureTooLarge,
  PicturePathTooLong,  // the largest number of characters follows
  Reply,
  MessageNotSent,
  CharactersReplaced,  // a list follows
  TextsCut,            // lines follow
  SendMessageSo,
  FontsNotKept,  // lines follow
  KeepTextSo,
  MessageRoom,     // a number follows
  MessageTooLong,  // a number follows
  MessageCount,    // a number follows
  UnreadCount,     // a number follows
  NoMessages,
  FeesToConvert,  // %1 number, %2 lines, %3 to %6 largest, smallest and what they become, %7 number
  BackupBeforeFees,  // %1 folder
  BackupFailed,      // a reason follows
  BackupStopped,
  FilesBackup,
  FilesBackupStopped,
  FilesBackupFailed,  // a reason follows
  FilesLeftOut,       // %1 number, %2 reason
  PicturesElsewhere,  // %1 number
  FilesInBackup,      // a number follows
  CloseWindow,
  LeaveWithoutBackup,
  BackupHint,
  BackupNotIntoData,
  Place,
  FoldersInIt,
  LastBackup,
  NoBackupYet,
  FolderNotEmpty,
  FolderRefused,  // a reason follows
  AskFolderName,
  AskRemoval,     // behind the name of a folder
  RestoreFailed,  // a reason follows
  RestoreStopped,
  RestoreWantsAlone,
  RestoreFiles,       // %1 missing, %2 older ones
  RestoreNewerFiles,  // %1 number, %2 one of them
  FilesNotRestored,   // %1 number, %2 reason
  RestoreDrill,
  DrillSound,         // %1 date, %2 patients, %3 records, %4 last examination, %5 files
  DrillFilesDamaged,  // as above, %6 damaged, %7 missing
  DrillFailed,        // %1 date, %2 reason
  NothingFound,       // in front of nothing: a date that is not there
  NoFile,
  NoRoom,
  NotWritable,
  FileDamaged,
  OtherFile,
  FileInUse,
  AlreadyThere,
  NotOpen,
  TextTooLong,
  FieldEmpty,
  FieldRefuses,
  OnlyToRead,  // a reason follows
  CloseUnsaved,
  LoseTyped,  // what is needed may follow
  SaveNeeds,  // names of fields follow
  NothingToSave,
  NameLockOpen,
  BesideVitalSigns,
  PrintWizard,
  PageItems,     // and their properties
  PrintedItems,  // of a page
  Patients,
  PerMinute,   // behind a measurement
  ThisScreen,  // in front of NotInThisVersion
  LanguageBox,
  ToolbarWords,
  Calendar,
  HiddenNames,
  ShowHidden,    // patients, behind their password
  LockHidden,    // again
  ChooseHidden,  // who is hidden
  HiddenAsked,   // what the password is good for
  HiddenNotSet,  // and that there is none yet
  NotAPlainFile,
  FileTooLarge,
  WorkFailed,
  StoreVanished,
  StoreEmptied,
  StoreDamaged,
  StoreShrunken,  // how many there are and were
  OfferBackup,    // its date, what it holds, where it lies
  NoBackupFound,
  StoreKeptAs,
  StoresInUse,
  FewerThanBackup,
  ReplaceFuller,
  WrittenBeside,
  FoldersAreLinks,    // and go on working; lines follow
  MessageStaysHere,   // a reason follows
  NameNotOffered,     // a reason follows
  FontsUnread,        // a reason follows
  MessagesNotRead,    // a reason follows
  NamesNotRead,       // a reason follows
  LetterheadNotRead,  // a reason follows
  ReplaceLetterhead,
  PasswordLost,    // the path of a file follows
  SettingsMended,  // a reason follows
  SettingsNotRead  // a reason follows
};

[[nodiscard]] std::string phrase(Station& istasyon, Phrase which);

}  // namespace shell
