// The picture of the music table.
#include <algorithm>
#include <cstring>

#include "mail_music/music/music.h"
#include "mail_music/music/music_window.h"
#include "platform/window.h"
#include "schedule/model/schedule.h"
#include "schedule/table/table_draw.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

constexpr Colour kWhite = 0xFFFFFF;
constexpr int kSmallWidth = 5;  // of the letters of the narrow head
constexpr int kSmallHeight = 10;
constexpr int kSmallIn = 2;
constexpr int kSmallDown = 5;

void RowText(int line, TableRowText& text) {
  const BgmRow& row = BgmTable.rows[line];
  const auto length = std::min(TextLength(row.filePath, sizeof row.filePath), sizeof text.content - 1);
  std::memcpy(text.content, row.filePath, length);
  TextFormat(text.hours, sizeof text.hours, "%3d:%2dD", row.hour, row.minute);
}

constexpr TableLook kLook{"   BGM ファイル ", " 予定時間 ", "", "", CopyMark::None, RowText};

void TitleDraw(Canvas* canvas, const TableLayout& layout) {
  char title[kSclTitleSize];
  TextFormat(title, sizeof title, "%.*s", kSclTitleSize - 1, Schedule.SclHeader.title);
  CanvasTextColour(canvas, kWhite);
  TableCellDraw(canvas, layout.title, Drawing.Brushes[kBrush0000E6], title);
}

// settled: the head "Ena." of the music table is written in narrower letters, because its
// box of 24 pixels holds three of the common ones.
void EnableHeadDraw(Canvas* canvas, const TableLayout& layout) {
  const FontHandle small = FontCreate(kSmallWidth, kSmallHeight, 400, false, "MS Gothic");
  CanvasTextColour(canvas, 0);
  CanvasFont(canvas, small);
  CanvasText(canvas, layout.checkRight + kSmallIn, layout.headTop + kSmallDown, "Ena.");
  CanvasFont(canvas, nullptr);
  FontDelete(small);
}

void Draw(Canvas* canvas, const Rect& area) {
  const TableLayout layout = BgmLayout(Music.hBgmWnd);
  TableView all = Music.view;
  all.lines = kBgmRowMax;
  FillArea(canvas, Drawing.FaceBrush, area);
  TableDraw(canvas, layout, all, kLook);
  TitleDraw(canvas, layout);
  EnableHeadDraw(canvas, layout);
}

}  // namespace

void BgmPaint(WindowHandle window) {
  Canvas* screen = CanvasGet(window);
  if (!screen) return;
  DrawSteady(screen, WindowClientRect(window), Draw);
  CanvasRelease(screen);
}
