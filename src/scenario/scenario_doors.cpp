#include "scenario/scenario_doors.h"

#include "resources/scenario_storage_ids.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/characters/chara_regi.h"
#include "scenario/logic/snry_logic.h"
#include "scenario/looks/snry_looks.h"
#include "scenario/storage/scenario.h"
#include "scenario/trace/trace_dialogs.h"

namespace {

// A button, and the dialog behind it.
struct Door {
  int id;
  void (*open)(WindowHandle owner);
  bool needsCast = false;
};

void OpenBackdrop(WindowHandle owner) {
  SnryCharBackDlgRun(owner, SnryBackScrollDlgRun);
}

constexpr Door kScenarioDoors[] = {
    {IDC_SNRY_PARA_CHECK, CheckParameterDlgRun},
    {IDC_SNRY_CHARACTERS, CharaRegiDlgRun},
    {IDC_SNRY_OPTIONS, SnryOptionDlgRun},
};

constexpr Door kSceneDoors[] = {
    {IDC_SNRY_CAST_ADD, FileCharaAddDlgRun},
    {IDC_SNRY_CAST_DELETE, FileCharaDelDlgRun, true},
    {IDC_SNRY_CAST_COPY, FileCharaCopyDlgRun, true},
    {IDC_SNRY_CAST_LINES, SnryCharMessageDlgRun, true},
    {IDC_SNRY_CAST_MOTIONS, SnryCharPlayDlgRun, true},
    {IDC_SNRY_CAST_ENTRY, SnryCharEntryDlgRun, true},
    {IDC_SNRY_CAST_DEPTH, SnryCharBariaDlgRun, true},
    {IDC_SNRY_SCENE_START, SceneSelParaDlgRun},
    {IDC_SNRY_SCENE_ADVANCE, SnryAdvanceSheetRun},
    {IDC_SNRY_SCENE_BACKDROP, OpenBackdrop},
    {IDC_SNRY_SCENE_TITLE, TitleScnDlgRun},
    {IDC_SNRY_SCENE_SOUNDS, SoundSetDlgRun},
    {IDC_SNRY_SCENE_TABLE, TableFormScnDlgRun},
    {IDC_SNRY_SCENE_KEYS, SceenKeyDlgRun},
};

template <std::size_t N>
bool Open(const Door (&doors)[N], int id, WindowHandle owner) {
  for (const Door& door : doors) {
    if (door.id != id) continue;
    if (!door.needsCast || Scenario.castRow >= 0) door.open(owner);
    return true;
  }
  return false;
}

}  // namespace

bool SnryScenarioDoorOpen(int id, WindowHandle owner) {
  return Open(kScenarioDoors, id, owner);
}

bool SnrySceneDoorOpen(int id, WindowHandle owner) {
  return Open(kSceneDoors, id, owner);
}
