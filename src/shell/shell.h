// The shell's shared state: windows, drawing objects, counters, folders, and
// the four families of dialogs. Everything is process-wide. A window handle that
// is null means that the window is not open, and this is how the whole program
// asks whether a feature is showing.
#pragma once

#include <cstdint>

#include "platform/canvas.h"
#include "platform/event.h"
#include "platform/types.h"

// --- Windows, each set at its window's Init and cleared at its close.

extern WindowHandle hMainWnd;         // the character's stage; target of all commands
extern WindowHandle hDiskMenu;        // DspDiskMenu, the tool menu panel
extern WindowHandle hMenuDlg;         // the open dialog of the family DlgIdMenu
extern WindowHandle hToolDlg;         // ... DlgIdTool
extern WindowHandle hSubDlg;          // ... DlgIdSub
extern WindowHandle hSnryDlg;         // ... DlgIdSnry
extern WindowHandle hFilePickDlg;     // the file picker
extern WindowHandle hBackUpDlg;       // BackUpDlg, back-up progress
extern WindowHandle hSearchDlg;       // stepped work: search, divide, restore
extern WindowHandle hClockWnd;        // FlyingBat6, the desktop clock
extern WindowHandle hCalenWnd;        // FlyingBat3, the desktop calendar
extern WindowHandle hMailNoticeWnd;   // FlyingBat2X
extern WindowHandle hSclNoticeWnd;    // FlyingBat4
extern WindowHandle hClockNoticeWnd;  // FlyingBat5
extern WindowHandle hSclTableWnd;     // ScheduleMakeDlg
extern WindowHandle hPlanWnd;         // SchedulePlan1Dlg
extern WindowHandle hBgmWnd;          // EntertainmentBGMDlg

// --- The template in force of each family; 0 for none.

extern int DlgIdMenu;
extern int DlgIdTool;
extern int DlgIdSub;
extern int DlgIdSnry;

// --- Shared drawing objects, made at start and deleted at shutdown.

inline constexpr int kBrushCount = 12;
inline constexpr int kPenCount = 11;
extern const Colour kBrushColours[kBrushCount];
extern BrushHandle Brushes[kBrushCount];
extern PenHandle Pens[kPenCount];
extern BrushHandle FaceBrush;  // borrowed from the system
extern Colour FaceBrushColour;

// Places in Brushes by colour (0xBBGGRR).
enum BrushIndex {
  kBrushBEBEBE,
  kBrushC8C8C8,
  kBrushC8C800,
  kBrushFFFFFF,
  kBrushFFFF00,
  kBrushFF8080,
  kBrush0000E6,
  kBrush00C800,
  kBrush8CE6F0,
  kBrush00F0F0,
  kBrushF000F0,
  kBrushFF0000,
};
// Places in Pens: style, width, colour.
enum PenIndex {
  kPenF0F0F0,
  kPen646464,
  kPenDot646464,
  kPenDot6464F0,
  kPenDotC8C800,
  kPenE6E6E6,
  kPen646464Second,
  kPenFFFFFF,
  kPen0000FF,
  kPenThick000000,
  kPenThick0000FF,
};

// --- The two work blocks, for the process's life.

inline constexpr int kCastBlockSize = 1300000;   // scenario cast records; order tables of the folder scope
inline constexpr int kScopeBlockSize = 4700000;  // folder statistics, second table at 2,000,000
extern unsigned char* CastBlock;
extern unsigned char* ScopeBlock;

// The shutdown has run, perhaps from inside a modal loop of a tick: what that tick
// has left to do stays undone.
extern bool Quitting;

// --- Text and screen figures.

extern int CharWidth;    // average width of a column of the text font
extern int LineHeight;   // its height with external leading
extern int ScreenWidth;  // working screen
extern int ScreenHeight;
extern int MenuBarHeight;  // of a one-line menu bar
extern int SizeButtonWidth;
extern int FrameWidth;
extern int FrameHeight;

// --- Folders.

inline constexpr int kRootSize = 300;
extern char RootFolder[kRootSize];  // the program folder: root of every data file name
inline constexpr int kPickerFolderCount = 5;
extern char PickFolder[256];  // the folder that the file picker shows
extern char PickerStartFolders[kPickerFolderCount][256];

// Room for the program folder and the name of any data file in it.
inline constexpr int kRootPathSize = kRootSize + 100;

// Writes the program folder and `name` (which begins with a backslash) into
// `buffer` of `size` bytes. Returns the length.
int RootPath(char* buffer, int size, const char* name);

// --- Counters of the tick, in ticks.

extern std::int32_t
    MenuCloseCount;  // from 40 down while the pointer is outside the panel; -1: inside it once
extern std::int32_t MenuReopenGuard;  // from 40 down; blocks opening the panel again
extern std::int32_t MailTickCount;    // up to 6000: one unit of the mail interval
extern std::int32_t MailMinuteCount;
extern std::int32_t FrameDivider;  // five-tick animation steps; 0 is off
extern std::int32_t AutoScrollDelay;
extern std::int32_t GroupOpenDelay;  // gap between the files of a group
extern std::int32_t FileWatchCount;  // up to 201

inline constexpr std::int32_t kMenuInside = -1;

// --- Panel and features.

extern std::int32_t MenuPanelState;  // 0 no panel, 1 top level, 4 to 8 a level, others an entry in work
extern std::int32_t MenuHiLine;      // the highlighted row
extern std::int32_t FuncNo;          // the active feature; only the mail's is asked for
extern Rect MenuPanelRect;           // the panel's place on the screen

inline constexpr std::int32_t kFuncMail = 11;  // FuncNo of the mail notice's settings

// --- Stepped work, driven by the tick.

// 0 none, 1 drive search, 2 folder search, 3 dividing, 4 restoring.
extern std::int32_t progressMode;
extern std::int32_t stepCounter;
extern bool BackUpActive;  // a back-up run copies a file a tick

// --- Mail and group opening, as far as the tick drives them.

extern bool MailCheckOn;
extern std::int32_t MailNoticeFlag;  // 1: a mail has come, its walk is wanted
extern std::int32_t MailPhase;       // 0: none
extern std::int32_t OpeningState;    // 0: idle

// MailPhase; 1 is a check that is wanted.
inline constexpr std::int32_t kMailWalking = 2;
inline constexpr std::int32_t kMailAlone = 3;  // the walk could not start

// OpeningState: a walk is on its way for a file, for a group, or to be looked at.
inline constexpr std::int32_t kOpeningFile = 1;
inline constexpr std::int32_t kOpeningGroup = 2;
inline constexpr std::int32_t kOpeningCheck = 3;

// Today: year minus 2000, month minus 1, day minus 1.
extern std::int32_t TodayYear;
extern std::int32_t TodayMonth;
extern std::int32_t TodayDay;

// The notice windows' place and size.
extern std::int32_t NoticeX;
extern std::int32_t NoticeY;
extern std::int32_t NoticeW;
extern std::int32_t NoticeH;
