// The way every command opens the modal dialog of a feature.
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
  PanelSchedule = 8,  // kept: the number of dividing
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

// Closes the panel, marks the feature as active by its number, runs `dialog` and
// takes the mark and the panel's state back. Returns what `dialog` returned. One
// feature at a time: while a dialog of the four families or a file dialog of the system
// is up, a command from outside does nothing, and 0 is returned. The options have no number of their own and
// hand on FuncNo as the panel's level set it.
int FeatureDialogRun(Feature feature, int (*dialog)());
