// The texts of the report's pages, in both languages.
#pragma once

#include <cstddef>
#include <string>

#include "rigs/settings.h"

namespace standin::views {

using rigs::Language;

enum class ReportText : std::size_t {
  Title,
  AllReports,
  ToIndex,
  Rig,
  ReadInCodePage,
  NotRead,
  MadeBy,
  Pictures,
  PicturesText,
  Before,
  After,
  Changes,
  ChangesText,
  ChangesPictures,
  NoChanges,
  ChangesRest,
  What,
  None,
  Findings,
  FindingsText,
  NoFindings,
  FindingsRest,
  WholeFile,
  ManualEntry,
  Skelegons,
  SkelegonsText,
  NoSkelegons,
  SkelegonsRest,
  Skelegon,
  Settings,
  AtDefaults,
  Scene,
  SceneText,
  SceneRest,
  Sent,
  SentText,
  SentFirst,
  SentRest,
  Conversion,
  Problems,
  Notes,
  Rejected,
  Asked,
  Verdict,
  VerdictText,
  AllWell,
  NotAllWell,
  NotConverted,
  ObjectsConverted,
  BonesSet,
  BonesPartlySet,
  BonesNotSet,
  RefusedByLayout,
  OnStatusLine,
  PassedOver,
  CutOff,
  Times,
  AndMore,
};
inline constexpr std::size_t kReportTextCount = 58;

const char* textOf(ReportText text, Language language);

// With what takes the place of {0} and {1}.
std::string filledText(ReportText text, Language language, const std::string& first, const std::string& second = {});

// "1 skelegon", "スケルゴン 1"
std::string countedText(std::size_t count, const char* english, const char* japanese, Language language);

}  // namespace standin::views
