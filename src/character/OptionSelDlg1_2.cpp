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
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/dib.h"
#include "services/feature_dialog.h"
#include "services/painting.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "services/rows.h"
#include "services/settings_save.h"
#include "services/text.h"
#include "world/world_list.h"

CharaOptionState CharaOption;

namespace {

bool IsListed(int place) {
  return place >= 0 && place < CharaTables.MainCharaCount && place < kMainCharaMax;
}

const char* NameOf(int place) {
  return IsListed(place) ? WorldCharaName(CharaTables.MainCharas[place].charaNo) : "";
}

void NameRow(int place, char* text, int size) {
  TextCopy(text, static_cast<std::size_t>(size), NameOf(place));
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
  ControlSetText(dialog, IDC_CHARA_NAME, NameOf(place));
  if (IsListed(place) && !CharaOption.previews[place] && CharaTables.MainCharas[place].charaNo >= 1) {
    CharaOption.previews[place] = DibLoad(CharaBmpPath(CharaTables.MainCharas[place].charaNo - 1, 0));
  }
  DrawPreview(dialog);
}

void Fill(WindowHandle dialog) {
  const Rows names = RowsOf(CharaTables.MainCharaCount, NameRow);
  RowsShow(dialog, IDC_CHARA_LIST, names, IsListed(Character.CharaIndex) ? Character.CharaIndex : -1);
  Show(dialog, Character.CharaIndex);
}

// The chosen character becomes the current one. Another one than before is loaded
// onto the stage, saved, and told to the other features.
void Take(WindowHandle dialog) {
  const int place = ListSelected(dialog, IDC_CHARA_LIST);
  OptionPreviewsFree();
  if (!IsListed(place) || !CharaSelect(place)) return;
  Stage.StageRedraw = kRedrawReload;
  CharaOption.changed = true;
  CharacterChosen();
}

// Until OK nothing but the previews has changed, so there is nothing to roll back.
void Leave(WindowHandle dialog) {
  OptionPreviewsFree();
  MenuDialogEnd(dialog, kCancelButton);
}

void Accept(WindowHandle dialog) {
  Take(dialog);
  MenuDialogEnd(dialog, kOkButton);
}

void Detail(WindowHandle dialog) {
  if (IsListed(CharaOption.shown)) CharacterDetailRun(dialog, CharaOption.shown);
}

void RowChosen(WindowHandle dialog) {
  Show(dialog, ListSelected(dialog, IDC_CHARA_LIST));
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Fill},    {EventKind::Paint, DrawPreview},
    {EventKind::Close, Leave},  {IDC_CHARA_LIST, EventKind::Chosen, RowChosen},
    {IDC_CHARA_DETAIL, Detail}, {kOkButton, Accept},
    {kCancelButton, Leave},
};
bool Proc(const Event& event) {
  return DialogActRun(event, kActs);
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
