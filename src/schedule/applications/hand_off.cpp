#include "schedule/applications/hand_off.h"

#include <cstring>

#include "clock_calendar/calendar/calendar.h"
#include "platform/file.h"
#include "schedule/applications/application_list.h"
#include "services/commands.h"
#include "services/path.h"
#include "services/program.h"
#include "services/record_file.h"
#include "services/sibling.h"
#include "services/text.h"

namespace {

constexpr char kHandOffName[] = "SclApliStUp.svt";
constexpr std::int32_t kLooksMost = 10;

static_assert(RecordSize<HandOffHead>() + RecordSize<HandOffCalendars>() +
                  kCalenYearMax * kMonthsOfYear * RecordSize<CalenMonth>() +
                  kCalenMax * RecordSize<CalenDefinition>() ==
              kHandOffSize);

HandOffHead HeadOf(std::uint8_t mode) {
  HandOffHead head = {};
  TextCopy(head.path, sizeof head.path, Program.RootFolder);
  head.mode = mode;
  return head;
}

HandOffCalendars CalendarsNow() {
  const auto selected = static_cast<std::uint32_t>(Calendar.CalenSel);
  return {{static_cast<std::uint8_t>(selected >> 16U), static_cast<std::uint8_t>(selected >> 8U),
           static_cast<std::uint8_t>(selected)},
          Calendar.CalenYearPos,
          Calendar.CalenFirstYear,
          Calendar.CalenYearCount};
}

void HandOffWrite(const char* path, std::uint8_t mode) {
  DataFile data;
  if (!DataReplace(data, path)) return;
  RecordWrite(data, HeadOf(mode));
  RecordWrite(data, CalendarsNow());
  for (const auto& year : Calendar.CalenMonths) RecordsWrite(data, year);
  RecordsWrite(data, Calendar.CalenDefinitions);
  DataClose(data);
}

bool HeadRead(HandOffHead& head) {
  DataFile data;
  if (!DataOpenRead(data, Applications.ApliHandOffFile, OpenMode::Read)) return false;
  const bool read = RecordRead(data, head);
  DataClose(data);
  return read;
}

void WatchBegin(std::int32_t entry, const char* path) {
  Applications.ApliStarted = entry;
  TextCopy(Applications.ApliHandOffFile, sizeof Applications.ApliHandOffFile, path);
  Applications.ApliHandOffTime = 0;
  Applications.ApliHandOffLooks = 0;
  FileLastWrite(path, &Applications.ApliHandOffTime);
}

void WatchEnd() {
  Applications.ApliStarted = 0;
  Applications.ApliHandOffFile[0] = '\0';
}

// True for an answer, which is kept until command 2372 applies it.
bool AnswerTake(const HandOffHead& head) {
  if (head.state != HandOffAnswer::Goes && head.state != HandOffAnswer::Ends) return false;
  if (head.mode == kHandOffExecutes) {
    TextCopy(Applications.ApliSchedule.path, kApliPathSize, head.path);
    Applications.ApliPending = Applications.ApliStarted + 1;
  } else {
    Applications.ApliPending = 1;
  }
  if (head.state == HandOffAnswer::Ends) WatchEnd();
  return true;
}

void LineOf(std::int32_t entry, const char* name, char* line, std::size_t size) {
  if (entry == Applications.ApliSelected) {
    TextFormat(line, size, "%s _%d_1", name, Applications.ApliMode);
  } else {
    TextFormat(line, size, "%s _0_0", name);
  }
}

}  // namespace

void ApliStart() {
  const std::int32_t entry = Applications.ApliToStart;
  Applications.ApliToStart = 0;
  if (entry < 1 || entry > Applications.ApliCount) return;
  PathSplit(ApliPath(entry - 1));
  char folder[kPathSplitSize + 1];
  TextCopy(folder, sizeof folder, PathParts.PathFolder);
  char line[kPathSplitSize + 16];
  LineOf(entry, PathParts.PathName, line, sizeof line);
  char file[kHandOffPathSize];
  TextFormat(file, sizeof file, "%s%s", folder, kHandOffName);
  HandOffWrite(file, Applications.ApliMode);
  WatchBegin(entry, file);
  // settled: an application that cannot be started is not the started one, so that it can be
  // tried again.
  if (!SiblingStart(folder, line)) WatchEnd();
  FolderSetCurrent(Program.RootFolder);
}

bool SclHandOffCheck() {
  if (Applications.ApliStarted == 0) return false;
  std::uint64_t time = 0;
  if (!FileLastWrite(Applications.ApliHandOffFile, &time)) {
    WatchEnd();
    return false;
  }
  if (time == Applications.ApliHandOffTime) return false;
  HandOffHead head = {};
  // settled: a hand-off file whose first 1000 bytes cannot be read is being written, and is
  // looked at again at the next ticks, ten times in all, then not before it changes once more;
  // a longer one is read as it stands.
  const bool whole = HeadRead(head);
  if (!whole && ++Applications.ApliHandOffLooks < kLooksMost) return false;
  Applications.ApliHandOffLooks = 0;
  Applications.ApliHandOffTime = time;
  return whole && AnswerTake(head);
}

void ApliSelectionTake() {
  if (Applications.ApliPending == 0) return;
  Applications.ApliSelected = Applications.ApliPending - 1;
  Applications.ApliPending = 0;
  ApliListSave();
}

void SclHandOffTick() {
  if (SclHandOffCheck()) CommandSend(Command::ApplicationHandOff);
}

int SclHandOffDue() {
  return TickDueIf(Applications.ApliStarted != 0);
}
