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
  HiddenCount,  // a number follows
  SaveAllCards,
  CardsSaved,  // a number follows
  CardsFromPregnancies,
  CardsAdded,       // a number follows
  CardsPassedOver,  // a number follows
  StationNumber,    // a number follows
  WithoutRegister,  // a reason follows
  CareElsewhere,
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
  NoTests,
  NoResults,
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
  MessageCount,  // a number follows
  UnreadCount,   // a number follows
  NoMessages,
  BackupFailed,  // a reason follows
  BackupStopped,
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
  RestoreDrill,
  DrillSound,    // %1 date, %2 patients, %3 records, %4 last examination
  DrillFailed,   // %1 date, %2 reason
  NothingFound,  // in front of nothing: a date that is not there
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
  PrintWizard,
  PageItems,     // and their properties
  PrintedItems,  // of a page
  Patients,
  Calendar,
  ShowHidden,    // patients, behind their password
  LockHidden,    // again
  ChooseHidden,  // who is hidden
  HiddenAsked,   // what the password is good for
  HiddenNotSet   // and that there is none yet
};

[[nodiscard]] std::string phrase(Station& istasyon, Phrase which);

}  // namespace shell
