// DspDiskMenu, the tool menu panel. Its levels are tables of rows; a sub-level is
// a panel of its own, which the row's command runs in place of the one on show.
#include <algorithm>

#include "character/character.h"
#include "character/motion.h"
#include "character/stage.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/shell_ids.h"
#include "schedule/table/table_scroll.h"
#include "services/commands.h"
#include "services/dialog_acts.h"
#include "services/drawing_objects.h"
#include "services/feature_dialog.h"
#include "services/painting.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "shell/panel.h"
#include "shell/shell_commands.h"

PanelState Panel;

namespace {

constexpr std::int32_t kCloseTicks = 40;  // from the pointer's last move on the stage
constexpr int kEscape = 27;

constexpr int kWidth = 200;
constexpr int kDrawnHeight = 220;  // of the background, whatever the level
constexpr int kTextX = 10;
constexpr int kTop = 10;
constexpr int kRowHeight = 20;
constexpr int kLastRow = 9;
constexpr std::int32_t kFarAway = 0x1000000;
constexpr int kStageOverlap = 50;  // a panel on the right covers that much of the stage

constexpr int kRowMax = 8;
constexpr std::int32_t kStateStays = -1;

struct Row {
  const char* text;
  std::int32_t state;  // of MenuPanelState; kStateStays: as it is
  Command command;     // None: the panel only closes
};

struct Level {
  std::int32_t state;
  int height;
  int rowCount;
  Row rows[kRowMax];
};

constexpr Row kCancel = {" キャンセル  ", 0, Command::None};

constexpr Level kLevels[] = {
    {kPanelTop,
     200,
     8,
     {{" ファイル オープン  ", 2, Command::FileOpen},
      {" ファイル バックアップ  ", 3, Command::BackUpFiles},
      {" その他のファイル操作  ", kPanelFiles, Command::PanelFiles},
      {" 操作説明書 ", kStateStays, Command::Manual},
      {" スケジュール/時間設定 ", kPanelSchedule, Command::PanelSchedule},
      {" アプリケーション", kPanelApplications, Command::PanelApplications},
      {" オプション  ", kPanelOptions, Command::PanelOptions},
      {" プログラム終了 ", kStateStays, Command::Exit}}},
    {kPanelFiles,
     80,
     3,
     {{" フォルダースコープ ", 400, Command::FolderScope},
      {" ファイル分割  ", 401, Command::DivideRestore},
      kCancel}},
    // kept: no row of the panel leads to its level of mail and music, but command 1903 does.
    {kPanelCommunication,
     60,
     2,
     {{" メール受信連絡 ", 500, Command::MailSettings}, {"BGM自動演奏設定 ", 501, Command::MusicTable}}},
    {kPanelSchedule,
     100,
     4,
     {{" スケジュール表 ", 600, Command::ScheduleTable},
      {" 時計表示  ", 601, Command::ClockSelect},
      {" カレンダー表示  ", 603, Command::CalendarSelect},
      kCancel}},
    // kept: the last row of the panel's level of applications counts as a fourth one, with
    // nothing in the third's place.
    {kPanelApplications,
     80,
     3,
     {{" シナリオライター", 702, Command::ScenarioWriter},
      {" キャラクタエディター", 700, Command::CharacterEditor},
      kCancel}},
    {kPanelOptions,
     100,
     4,
     {{" ミルレールキャラクタ", 800, Command::OptionMainCharacter},
      {" アラームキャラクタ", 800, Command::OptionAlarmCharacter},
      {" レイアウト設定 ", 800, Command::OptionLayout},
      kCancel}},
};

// Null while no level is on show.
const Level* LevelOnShow() {
  for (const Level& level : kLevels) {
    if (level.state == Panel.MenuPanelState) return &level;
  }
  return nullptr;
}

int RowAt(int y) {
  return std::clamp((y - kTop) / kRowHeight, 0, kLastRow);
}

int RowTop(int row) {
  return kTop + row * kRowHeight;
}

void Paint(WindowHandle panel) {
  const Level* level = LevelOnShow();
  Canvas* canvas = level ? CanvasGet(panel) : nullptr;
  if (!canvas) return;
  FillArea(canvas, Drawing.FaceBrush, {0, 0, kWidth, kDrawnHeight});
  // kept: a new panel begins with the row that was marked in the one before, even
  // if it has no such row.
  const int top = RowTop(Panel.MenuHiLine);
  FillArea(canvas, Drawing.Brushes[kBrushC8C800], {0, top, kWidth, top + kRowHeight});
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, 0);
  for (int row = 0; row < level->rowCount; ++row)
    CanvasText(canvas, kTextX, RowTop(row), level->rows[row].text);
  CanvasRelease(canvas);
}

// Beside the stage, on the side where the screen has more room.
Point PlaceFor(int width, int height) {
  // bounded: a stage that the settings file puts out of reach is far away for the place of the
  // panel.
  const int x = std::clamp(Character.StageX, -kFarAway, kFarAway);
  const int y = std::clamp(Character.StageY, -kFarAway, kFarAway);
  const bool stageIsLeft = Screen.ScreenWidth / 2 > x + Stage.StageWidth / 2;
  return {stageIsLeft ? x + Stage.StageWidth - kStageOverlap : x - width,
          Screen.ScreenHeight <= y + height ? Screen.ScreenHeight - height : y};
}

void Init(WindowHandle panel) {
  Panel.hDiskMenu = panel;
  const Level* level = LevelOnShow();
  const int width = kWidth;
  const int height = level ? level->height : RectHeight(WindowRect(panel));
  const Point at = PlaceFor(width, height);
  WindowMove(panel, at.x, at.y, width, height, false);
  Panel.MenuPanelRect = {at.x, at.y, at.x + width, at.y + height};
  // The stage goes on hearing the pointer, which keeps the top level from timing out.
  if (Panel.MenuPanelState == kPanelTop) WindowEnable(Program.hMainWnd, true);
}

void Forget(WindowHandle panel) {
  if (Panel.hDiskMenu == panel) Panel.hDiskMenu = nullptr;
}

void End(WindowHandle panel) {
  Forget(panel);
  DialogEnd(panel, 0);
}

void Leave() {
  Panel.MenuPanelState = 0;
  Panel.FuncNo = 0;
  Panel.MenuReopenGuard = 0;
}

void Dismiss(WindowHandle panel) {
  if (Panel.MenuPanelState != 0) Leave();
  End(panel);
}

void PointerMoved(const Event& event) {
  Panel.MenuCloseCount = kMenuInside;  // from now on the panel closes when the pointer leaves it
  const Level* level = LevelOnShow();
  if (!level) return;
  const int row = RowAt(event.y);
  if (row >= level->rowCount || row == Panel.MenuHiLine) return;
  Panel.MenuHiLine = row;
  Paint(event.window);
}

void Pressed(const Event& event) {
  const Level* level = LevelOnShow();
  if (!level || (event.keys & kShiftHeld) != 0) return;
  const int row = RowAt(event.y);
  if (level->state == kPanelTop) {
    // kept: a click below the last row of the panel, which does nothing else, still keeps the
    // character from being bored.
    BoredTimerReset();
    if (row < kLastRow) Panel.MenuHiLine = row;
  }
  if (row >= level->rowCount) return;
  const Row& chosen = level->rows[row];
  if (chosen.state != kStateStays) Panel.MenuPanelState = chosen.state;
  if (chosen.command != Command::None) CommandSend(chosen.command);
  // A dialog that the command ran has closed the panel long ago. What runs no
  // dialog only clears the state.
  if (Panel.MenuPanelState == 0 && Panel.hDiskMenu == event.window) End(event.window);
}

void Typed(const Event& event) {
  if (event.key == kEscape) Dismiss(event.window);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Init},
    {EventKind::Paint, Paint},
    {EventKind::MouseMove, PointerMoved},
    {EventKind::LeftDown, Pressed},
    {EventKind::Char, Typed},
    // From the tick, and from the keyboard: Escape arrives as 2, Enter as 1.
    {1, Dismiss},
    {2, Dismiss},
    {EventKind::Close, End},
    {EventKind::Destroy, Forget},
};

bool PanelProc(const Event& event) {
  return DialogActRun(event, kActs);
}

void OpenTop() {
  Panel.MenuPanelState = kPanelTop;
  Panel.MenuCloseCount = kCloseTicks;
  if (Character.MenuFrame != 0) {
    CharaMenuOn();
    if (Stage.StageRedraw != kRedrawNothing) CommandSend(Command::StageRedraw);
  }
  DialogRun(IDD_DspDiskMenu, Program.hMainWnd, PanelProc);
  WindowInvalidate(Program.hMainWnd, false);
}

struct SubPanel {
  Command command;
  std::int32_t state;  // kStateStays: the level is the one of the moment
  Feature feature;
};
constexpr SubPanel kSubPanels[] = {
    {Command::PanelFiles, kPanelFiles, Feature::PanelFiles},
    {Command::PanelCommunication, kPanelCommunication, Feature::PanelCommunication},
    {Command::PanelSchedule, kPanelSchedule, Feature::PanelSchedule},
    {Command::PanelDesktop, kStateStays, Feature::PanelDesktop},
    {Command::PanelApplications, kPanelApplications, Feature::PanelApplications},
    {Command::PanelOptions, kPanelOptions, Feature::PanelOptions},
};

// kept: a sub-level of the panel closes by no count and no pointer; an entry is chosen, or
// Escape pressed.
void RunSubPanel(const SubPanel& sub) {
  PanelWindowClose();
  Panel.FuncNo = static_cast<std::int32_t>(sub.feature);
  if (sub.state != kStateStays) Panel.MenuPanelState = sub.state;
  DialogRun(IDD_DspDiskMenu, Program.hMainWnd, PanelProc);
  // Closed from outside, with nothing chosen: the pointer must be able to open the
  // panel again, and at this level no tick clears the state.
  if (Panel.hDiskMenu || Panel.MenuPanelState != sub.state) return;
  Panel.MenuPanelState = 0;
  Panel.FuncNo = 0;
}

}  // namespace

void CommandPanelLevel(Command command) {
  for (const SubPanel& sub : kSubPanels) {
    if (sub.command == command) RunSubPanel(sub);
  }
}

void PanelWindowClose() {
  SendClose(Panel.hDiskMenu);
}

void PanelDismiss() {
  if (Panel.MenuPanelState == 0) return;
  Leave();
  PanelWindowClose();
}

void PanelEntryBegin(Feature feature) {
  PanelWindowClose();
  Panel.FuncNo = static_cast<std::int32_t>(feature);
}

void PanelEntryDone() {
  Panel.FuncNo = 0;
  Panel.MenuPanelState = 0;
}

void PanelLeave() {
  PanelWindowClose();
  Panel.MenuPanelState = 0;
}

void PanelStateClear() {
  Panel.MenuPanelState = 0;
}

bool PanelIsOpen() {
  return Panel.hDiskMenu != nullptr;
}

Feature PanelFeature() {
  return static_cast<Feature>(Panel.FuncNo);
}

void PanelPointerOnStage(const Event& event) {
  if (Panel.MenuPanelState == 0 && Panel.MenuReopenGuard == 0) {
    OpenTop();
    return;
  }
  // kept: back from the panel to the stage, the pointer is counted as never inside.
  if (Panel.MenuPanelState == kPanelTop) Panel.MenuCloseCount = kCloseTicks;
  if (!WindowHasFocus(Program.hMainWnd)) {
    TableScrollForget();
  } else if ((event.keys & kLeftHeld) == 0) {
    TableScrollStop();
  }
}
