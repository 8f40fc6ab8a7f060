#include "filetools/open/open_walk.h"

#include <cstring>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "filetools/open/group_open.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_selection.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"

namespace {

static_assert(kOpnTextSize == kWalkSoundNameSize && kOpnTextSize == kBalloonNameSize);
static_assert(kOpnGroupFileMax == kBalloonNameMax);

WalkSettings Stored() {
  WalkSettings s{OpnHistory.animeOn, OpnHistory.soundOn, {}};
  std::memcpy(s.soundName, OpnHistory.soundName, sizeof s.soundName);
  return s;
}

void Store(const WalkSettings& s) {
  OpnHisWalkSet(s.animeOn != 0, s.soundOn != 0, s.soundName);
  OpnHisSave();
}

// kept: the slot of a walk is the place of the main character in its own list.
void Request(const WalkSettings& settings, WalkRequest& request) {
  request.settings = settings;
  request.slot = Character.CharaIndex;
  request.opening = kOpeningFile;
  request.atEnd = Command::OpenLaunch;
  request.balloon.count = 1;
  std::memcpy(request.balloon.names[0], OpnSelection.fileName, sizeof OpnSelection.fileName);
}

constexpr WalkSettingsForm kForm{IDD_SetOpnFileAnimeDlg, Stored, Store, Request};

}  // namespace

int WalkStartOpen() {
  WalkRequest request{};
  Request(Stored(), request);
  return WalkStart(request);
}

int WalkStartGroup() {
  WalkRequest request{};
  Request(Stored(), request);
  request.opening = kOpeningGroup;
  const OpnGroupRec& g = *GroupRun.OpnPendingGroup;
  request.balloon.group = true;
  request.balloon.count = g.fileCount;
  std::memcpy(request.balloon.names, g.fileName, sizeof g.fileName);
  return WalkStart(request);
}

bool SetOpnFileAnimeDlgRun(WindowHandle owner) {
  return WalkSettingsRun(owner, kForm);
}

void OpnHisTakeWalkSettings() {
  const int row = Character.CharaSet.WalkRow[0];
  if (row < 1 || row > kWalkCharaMax)
    return;  // bounded: a character whose walking row is beyond the table carries nothing into the history
  // A browsed file that waits for its start stands in memory only: reading again
  // would lose it, and the rest of memory is what the file holds.
  const bool waits = OpnHistory.workCount != OpnHistory.fileCount;
  // settled: a character's walking settings are not saved into a history file that
  // cannot be read.
  if (!waits && OpnHisLoad() != 0) return;
  OpnHisWalkerSet(CharaTables.WalkFlags[row - 1], CharaTables.WalkCharas[row - 1].sound);
  OpnHisSave();
}
