// The features that the panel leads to.
#pragma once

#include <cstdint>

// Numbers of the features; the panel keeps the one that is active.
enum class Feature : std::int32_t {
  None = 0,
  FileOpening = 1,
  FileBackUp = 2,
  ScheduleTable = 3,
  PanelFiles = 4,
  PanelCommunication = 5,
  FolderScope = 6,
  DivideChoice = 7,
  Divide = 8,
  PanelSchedule = 8,  // kept: the panel's schedule level has the feature number of dividing
  Restore = 9,
  PanelDesktop = 10,
  MailSettings = 11,
  DesktopTidy = 12,
  PanelApplications = 13,
  MusicTable = 14,
  DesktopCover = 15,
  ClockDisplay = 16,
  OwnApplications = 17,
  CalendarDisplay = 18,
  PanelOptions = 19,
  ScenarioMade = 20,
};
