#include "filetools/open/open_controls.h"

#include "filetools/open/open_choice.h"
#include "filetools/open/open_groups.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_record.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/rows.h"
#include "services/text.h"

namespace {

void ProgramRow(int row, char* text, int size) {
  if (row == 0) {
    TextCopy(text, static_cast<std::size_t>(size), "関連づけプログラム");
  } else {
    OpnRowText(text, size, OpnProgList.progName[row - 1], OpnProgList.progPath[row - 1]);
  }
}

}  // namespace

void OpnFileRow(int row, char* text, int size) {
  OpnRowText(text, size, OpnHistory.fileName[row], OpnHistory.filePath[row]);
}

void OpnFilesShow(WindowHandle dialog) {
  RowsShow(dialog, IDC_OPN_FILE, RowsOf(OpnHistory.workCount, OpnFileRow), OpnWork.fileSel);
}

void OpnProgramsShow(WindowHandle dialog) {
  RowsShow(dialog, IDC_OPN_PROGRAM, RowsOf(OpnProgList.workCount + 1, ProgramRow), OpnWork.progSel);
}

bool OpnSelectionFromLists(WindowHandle dialog) {
  return OpnSelectionFill(ListSelected(dialog, IDC_OPN_FILE), ListSelected(dialog, IDC_OPN_PROGRAM));
}

void OpnGroupsShow(WindowHandle dialog, int group) {
  RowsShow(dialog, IDC_OPN_GROUP, RowsOf(kOpnGroupMax, OpnGroupRowText), group);
}

int OpnGroupOfList(WindowHandle dialog) {
  const int row = ListSelected(dialog, IDC_OPN_GROUP);
  return row >= 0 && row < kOpnGroupMax ? row : 0;
}

void OpnGroupFilesShow(WindowHandle dialog, int group) {
  const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
  const ListQuiet quiet(dialog, IDC_OPN_GROUP_FILES);
  ListClear(dialog, IDC_OPN_GROUP_FILES);
  for (int row = 0; row < g.fileCount; ++row) {
    char text[kOpnRowSize];
    OpnRowText(text, sizeof text, g.fileName[row], g.filePath[row]);
    ListAdd(dialog, IDC_OPN_GROUP_FILES, text);
  }
}

void OpnGroupShow(WindowHandle dialog, int group) {
  char comment[kOpnCommentSize];
  TextCopy(comment, sizeof comment, OpnGroups.OpnGroupTable[group].comment);
  ControlSetText(dialog, IDC_OPN_COMMENT, comment);
  OpnGroupFilesShow(dialog, group);
}

void OpnGroupChosen(WindowHandle dialog) {
  OpnGroupShow(dialog, OpnGroupOfList(dialog));
}

bool OpnCommentTake(WindowHandle dialog, int group) {
  char comment[kOpnCommentSize];
  ControlGetText(dialog, IDC_OPN_COMMENT, comment, sizeof comment);
  return OpnGroupSetComment(group, comment);
}

void OpnRecordShow(WindowHandle dialog) {
  RowsShow(dialog, IDC_OPN_RECORD, RowsOf(OpnRecord.recCount, OpnRecordRowText));
}
