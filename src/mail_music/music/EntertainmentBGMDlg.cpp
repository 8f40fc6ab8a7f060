// EntertainmentBGMDlg, "BGM 設定": the music table.
//
// kept: nothing plays the music table; the two buttons that would start and end it do nothing.
#include "mail_music/music/BGMRsvTimeSetDlg.h"
#include "mail_music/music/music.h"
#include "mail_music/music/music_window.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/mail_music_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/table/schedule_table.h"
#include "schedule/table/table_window.h"
#include "services/dialog_acts.h"
#include "services/modal.h"
#include "services/panel_entry.h"
#include "services/program.h"

namespace {

constexpr int kBar = 110;  // the scroll bar, which the template has not

// kept: the music table scrolls as far as the schedule has rows, whose scrolling it shares;
// its other rows are out of reach.
constexpr TableWindow kTable{Music.view, kBar, BgmLayout,
                             [] { return static_cast<int>(Schedule.SclHeader.count); }};

void Open(WindowHandle dialog) {
  Music.hBgmWnd = dialog;
  Music.view = {};
  RowGuestSet(dialog);
  RowsForget();
  TableWindowFit(kTable, dialog);
  TableFocus(dialog, Music.view, kBar);
}

void Paint(WindowHandle dialog) {
  if (Music.view.lines != Schedule.SclHeader.count) TableWindowFit(kTable, dialog);
  BgmPaint(dialog);
}

// --- The pointer

TablePlace PlaceOf(const Event& event) {
  return TablePlaceAt(BgmLayout(event.window), Music.view.firstLine, kBgmRowMax, event.x, event.y);
}

void LeftDown(const Event& event) {
  TableFocus(event.window, Music.view, kBar);
  const TablePlace place = PlaceOf(event);
  const bool cell = place.hit == TableHit::Content || place.hit == TableHit::Hours;
  if (!cell && place.hit != TableHit::Number) return;
  RowChoose(place.row, TableCellOf(place.hit));
  SendPaint(event.window);
}

void LeftDouble(const Event& event) {
  if (ModalIsUp()) return;
  const TablePlace place = PlaceOf(event);
  if (place.hit == TableHit::Content) BgmFileRun(event.window, place.row - 1);
  if (place.hit == TableHit::Hours) BGMRsvTimeSetDlgRun(event.window);
  // kept: the title of the music table is the schedule's.
  if (place.hit == TableHit::Title) SCLTitleDlgRun(ToolDialog::SCLTitleDlgSecond, event.window);
  SendPaint(event.window);
}

// kept: the menu of the music table's rows acts on the rows of the schedule.
void RightDown(const Event& event) {
  const TablePlace place = PlaceOf(event);
  if (place.hit != TableHit::Number) return;
  RowChoose(place.row);
  SendPaint(event.window);
  TableMenuOpen(event, place.row);
}

// --- Buttons

template <void (*run)(WindowHandle)>
void Files(WindowHandle dialog) {
  if (!ModalIsUp()) run(dialog);
}

void Close(WindowHandle dialog) {
  if (!ModalIsUp()) WindowDestroy(dialog);
}

void Gone() {
  Music.hBgmWnd = nullptr;
  Music.view = {};
  RowGuestSet(nullptr);
  if (PanelFeature() == Feature::MusicTable) PanelEntryDone();
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},           {EventKind::Paint, Paint},
    {EventKind::LeftDown, LeftDown},   {EventKind::LeftDouble, LeftDouble},
    {EventKind::RightDown, RightDown}, {IDC_BGM_LOAD, Files<BgmLoadRun>},
    {IDC_BGM_SAVE, Files<BgmSaveRun>}, {kCancelButton, Close},
    {EventKind::Close, Close},         {EventKind::Destroy, Gone},
};

bool Handle(const Event& event) {
  return TableScrollEvent(event, Music.view) || DialogActRun(event, kActs);
}

}  // namespace

TableLayout BgmLayout(WindowHandle window) {
  constexpr TableShape kShape{.rightMargin = 20, .hours = 180, .check = 0, .alarm = 24};
  return TableLayoutOf(WindowClientRect(window), kShape);
}

void BgmWindowOpen() {
  if (!Music.hBgmWnd) DialogOpen(IDD_EntertainmentBGMDlg, Program.hMainWnd, Handle);
}
