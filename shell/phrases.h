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
  NoMessages
};

[[nodiscard]] std::string phrase(Station& istasyon, Phrase which);

}  // namespace shell
