#include "schedule/table/row_commands.h"

#include <algorithm>

#include "platform/window.h"
#include "schedule/table/schedule_table.h"
#include "services/boxes.h"
#include "services/modal.h"
#include "services/text.h"

namespace {

constexpr const char* kInsertError = "スケジュール項目挿入エラー";

bool GuestIsClicked() {
  return SclTable.guest && RowWindow() == SclTable.guest;
}

const RowTable* Rows() {
  const WindowHandle window = RowWindow();
  if (!window) return nullptr;
  return window == SclTable.hPlanWnd ? SclTable.planRows : &SclRowTable();
}

TableView& View() {
  return Rows() == SclTable.planRows ? SclTable.PlanView : SclTable.SclTableView;
}

// The windows show the rows as they are now.
void Show(const RowTable& rows) {
  TableView& view = View();
  TableViewFit(view, rows.count(), view.pageLines);
  SendPaint(RowWindow());
  if (GuestIsClicked()) SendPaint(SclTable.hSclTableWnd);
}

void TellFull(const RowTable& rows) {
  char text[200];
  TextFormat(text, sizeof text, "項目数の最大値%dに達しています。項目を減らしてから挿入してください。",
             rows.limit);
  BoxTell(RowWindow(), text, kInsertError);
}

// kept: the limit of rows is looked at once, before the first of several goes in.
// bounded: rows beyond the room of a schedule or a plan are not inserted.
void InsertRange(const RowTable& rows) {
  const RowRange range = RowSelectionRange();
  // settled: an anchor of the selection behind the last row, which a deletion leaves, inserts behind it.
  const int at = std::clamp(RowSelection.selectionAnchor - 1, 0, rows.count());
  for (int n = range.last - range.first + 1; n > 0 && rows.count() < rows.capacity; --n) rows.insert(at);
}

// The copied rows would be written over, or be reached.
bool PasteOverlaps(int first, int last, int target) {
  if (first <= target && target <= last) return true;
  return target < first && target + last - first >= first;
}

bool PasteAsked(int first, int last, int target) {
  char text[200];
  TextFormat(text, sizeof text, "項目%d～%dまでを 項目%d からへ上書きます", first, last, target);
  return BoxAsk(RowWindow(), text, "貼り付け");
}

// kept: pasted rows keep the dates of those that were copied.
// bounded: copied rows that a deletion has taken away since are not pasted.
void PasteRange(const RowTable& rows, int target) {
  for (int from = RowSelection.copyFirst; from <= RowSelection.copyLast; ++from, ++target) {
    if (target > rows.count() || from > rows.count()) break;
    rows.copy(target - 1, from - 1);
  }
}

}  // namespace

WindowHandle RowWindow() {
  if (SclTable.clicked) return SclTable.clicked;
  return SclTable.hSclTableWnd ? SclTable.hSclTableWnd : SclTable.hPlanWnd;
}

void RowWindowClicked(WindowHandle window) {
  SclTable.clicked = window;
}

void CommandRowInsert() {
  if (ModalIsUp()) return;
  const RowTable* rows = Rows();
  if (!rows) return;
  if (rows->count() >= rows->limit) {
    TellFull(*rows);
  } else if (RowSelection.currentRow == 0) {
    BoxTell(RowWindow(), "項目を挿入できません", kInsertError);
  } else {
    InsertRange(*rows);
    Show(*rows);
  }
}

void CommandRowDelete() {
  if (ModalIsUp()) return;
  const RowTable* rows = Rows();
  if (!rows || rows->count() == 0 || RowSelection.currentRow == 0) return;
  const RowRange range = RowSelectionRange();
  // bounded: a range of rows that reaches behind the last one ends there.
  const int last = std::min(range.last, rows->count());
  if (last >= range.first) rows->remove(range.first - 1, last - range.first + 1);
  // kept: behind a deletion the current row keeps its number, which may now lie behind the last
  // row.
  RowChoose(RowSelection.currentRow);
  if (rows->recalculate) rows->recalculate();
  Show(*rows);
}

void CommandRowCopy() {
  if (ModalIsUp()) return;
  const RowTable* rows = Rows();
  if (!rows || RowSelection.currentRow == 0) return;
  RowsMarkCopied(rows->mark);
  SendPaint(RowWindow());
}

void CommandRowPaste() {
  if (ModalIsUp()) return;
  const RowTable* rows = Rows();
  const int target = RowSelection.currentRow;
  if (!rows || target == 0 || RowSelection.copyMark != rows->mark) return;
  if (PasteOverlaps(RowSelection.copyFirst, RowSelection.copyLast, target)) {
    BoxTell(RowWindow(), "貼り付けできません", "貼り付け指定範囲エラー");
    return;
  }
  if (!PasteAsked(RowSelection.copyFirst, RowSelection.copyLast, target)) return;
  // The window may have been closed, or its rows changed, while the question stood.
  if (Rows() != rows || RowSelection.copyMark != rows->mark) return;
  PasteRange(*rows, target);
  RowChoose(target);
  RowsMarkClear();
  Show(*rows);
}
