// OptionSelDlg1_2: the choice of the main character.

#include "character/chara_select.h"
#include "character/character.h"
#include "character/character_chosen.h"
#include "character/character_commands.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/options.h"
#include "character/stage.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/dib.h"
#include "services/feature_dialog.h"
#include "services/painting.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "services/settings_save.h"
#include "world/world_list.h"

CharaOptionState CharaOption;

namespace {

constexpr int kList = 100;
constexpr int kName = 101;
constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kDetail = 2369;

// First frames of the characters that were shown, by their places in the list.

bool IsListed(int place) {
  return place >= 0 && place < CharaTables.MainCharaCount && place < kMainCharaMax;
}

const char* NameOf(int place) {
  return IsListed(place) ? WorldCharaName(CharaTables.MainCharas[place].charaNo) : "";
}

Rect PreviewArea(WindowHandle dialog) {
  const Rect client = WindowClientRect(dialog);
  return {client.right * 140 / 300, client.bottom * 22 / 130, client.right, client.bottom * 100 / 130};
}

void DrawPreview(WindowHandle dialog) {
  Canvas* canvas = CanvasGet(dialog);
  if (!canvas) return;
  const Rect area = PreviewArea(dialog);
  CanvasClip(canvas, area);
  FillArea(canvas, BrushFace(), area);
  if (IsListed(CharaOption.shown))
    DibDraw(canvas, area.left, area.top, CharaOption.previews[CharaOption.shown]);
  CanvasRelease(canvas);
}

void Show(WindowHandle dialog, int place) {
  CharaOption.shown = place;
  ControlSetText(dialog, kName, NameOf(place));
  if (IsListed(place) && !CharaOption.previews[place] && CharaTables.MainCharas[place].charaNo >= 1) {
    CharaOption.previews[place] = DibLoad(CharaBmpPath(CharaTables.MainCharas[place].charaNo - 1, 0));
  }
  DrawPreview(dialog);
}

void Fill(WindowHandle dialog) {
  const ListQuiet quiet(dialog, kList);
  ListClear(dialog, kList);
  for (int place = 0; place < CharaTables.MainCharaCount; ++place) ListAdd(dialog, kList, NameOf(place));
  ListSelect(dialog, kList, IsListed(Character.CharaIndex) ? Character.CharaIndex : -1);
  Show(dialog, Character.CharaIndex);
}

// The chosen character becomes the current one. Another one than before is loaded
// onto the stage, saved, and told to the other features.
void Take(WindowHandle dialog) {
  const int place = ListSelected(dialog, kList);
  OptionPreviewsFree();
  if (!IsListed(place) || !CharaSelect(place)) return;
  Stage.StageRedraw = kRedrawReload;
  CharaOption.changed = true;
  CharacterChosen();
}

// Until OK nothing but the previews has changed, so there is nothing to roll back.
void Leave(WindowHandle dialog) {
  OptionPreviewsFree();
  MenuDialogEnd(dialog, kCancel);
}

bool Press(const Event& event) {
  switch (event.id) {
    case kDetail:
      if (IsListed(CharaOption.shown)) CharacterDetailRun(event.window, CharaOption.shown);
      return true;
    case kOk:
      Take(event.window);
      MenuDialogEnd(event.window, kOk);
      return true;
    case kCancel:
      Leave(event.window);
      return true;
    default:
      return true;
  }
}

bool Proc(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      Fill(event.window);
      return true;
    case EventKind::Chosen:
      Show(event.window, ListSelected(event.window, kList));
      return true;
    case EventKind::Pressed:
      return Press(event);
    case EventKind::Paint:
      DrawPreview(event.window);
      return true;
    case EventKind::Close:
      Leave(event.window);
      return true;
    default:
      return false;
  }
}

}  // namespace

void OptionPreviewsFree() {
  for (ImageHandle& preview : CharaOption.previews) {
    DibFree(preview);
    preview = nullptr;
  }
}

void CommandOptionMainCharacter(Command) {
  FeatureDialogRun(PanelFeature(), [] {
    WorldListRead();
    CharaOption.changed = false;
    MenuDialogRun(MenuDialog::OptionSelDlg1_2, IDD_OptionSelDlg1_2, Program.hMainWnd, Proc);
    if (CharaOption.changed) SysFileWrite();
    if (Stage.StageRedraw == kRedrawReload) CommandSend(Command::StageRedraw);
    return 0;
  });
}
