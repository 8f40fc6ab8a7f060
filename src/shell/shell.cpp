#include "shell/shell.h"

#include "shell/text.h"

WindowHandle hMainWnd;
WindowHandle hDiskMenu;
WindowHandle hMenuDlg;
WindowHandle hToolDlg;
WindowHandle hSubDlg;
WindowHandle hSnryDlg;
WindowHandle hFilePickDlg;
WindowHandle hBackUpDlg;
WindowHandle hSearchDlg;
WindowHandle hClockWnd;
WindowHandle hCalenWnd;
WindowHandle hMailNoticeWnd;
WindowHandle hSclNoticeWnd;
WindowHandle hClockNoticeWnd;
WindowHandle hSclTableWnd;
WindowHandle hPlanWnd;
WindowHandle hBgmWnd;

int DlgIdMenu;
int DlgIdTool;
int DlgIdSub;
int DlgIdSnry;

const Colour kBrushColours[kBrushCount] = {
    0xBEBEBE, 0xC8C8C8, 0xC8C800, 0xFFFFFF, 0xFFFF00, 0xFF8080,
    0x0000E6, 0x00C800, 0x8CE6F0, 0x00F0F0, 0xF000F0, 0xFF0000,
};
BrushHandle Brushes[kBrushCount];
PenHandle Pens[kPenCount];
BrushHandle FaceBrush;
Colour FaceBrushColour;

unsigned char* CastBlock;
unsigned char* ScopeBlock;
bool Quitting;

int CharWidth;
int LineHeight;
int ScreenWidth;
int ScreenHeight;
int MenuBarHeight;
int SizeButtonWidth;
int FrameWidth;
int FrameHeight;

char RootFolder[kRootSize];
char PickFolder[256];
char PickerStartFolders[kPickerFolderCount][256];

std::int32_t MenuCloseCount;
std::int32_t MenuReopenGuard;
std::int32_t MailTickCount;
std::int32_t MailMinuteCount;
std::int32_t FrameDivider;
std::int32_t AutoScrollDelay;
std::int32_t GroupOpenDelay;
std::int32_t FileWatchCount;

std::int32_t MenuPanelState;
std::int32_t MenuHiLine;
std::int32_t FuncNo;
Rect MenuPanelRect;

std::int32_t progressMode;
std::int32_t stepCounter;
bool BackUpActive;

bool MailCheckOn;
std::int32_t MailNoticeFlag;
std::int32_t MailPhase;
std::int32_t OpeningState;

std::int32_t TodayYear;
std::int32_t TodayMonth;
std::int32_t TodayDay;

std::int32_t NoticeX;
std::int32_t NoticeY;
std::int32_t NoticeW;
std::int32_t NoticeH;

int RootPath(char* buffer, int size, const char* name) {
  TextCopy(buffer, static_cast<std::size_t>(size), RootFolder);
  return static_cast<int>(TextAppend(buffer, static_cast<std::size_t>(size), name));
}
