#include "filetools/open/open_controls.h"

#include "filetools/open/open_choice.h"
#include "filetools/open/open_groups.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_record.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/text.h"

void OpnRowAdd(WindowHandle dialog, int list, const char* name, const char* folder) {
  char text[kOpnRowSize];
  OpnRowText(text, sizeof text, name, folder);
  ListAdd(dialog, list, text);
}

void OpnFilesShow(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_OPN_FILE);
  ListClear(dialog, IDC_OPN_FILE);
  for (int row = 0; row < OpnHistory.workCount; ++row) {
    OpnRowAdd(dialog, IDC_OPN_FILE, OpnHistory.fileName[row], OpnHistory.filePath[row]);
  }
  ListSelect(dialog, IDC_OPN_FILE, OpnWork.fileSel);
}

void OpnProgramsShow(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_OPN_PROGRAM);
  ListClear(dialog, IDC_OPN_PROGRAM);
  ListAdd(dialog, IDC_OPN_PROGRAM, "関連づけプログラム");
  for (int row = 0; row < OpnProgList.workCount; ++row) {
    OpnRowAdd(dialog, IDC_OPN_PROGRAM, OpnProgList.progName[row], OpnProgList.progPath[row]);
  }
  ListSelect(dialog, IDC_OPN_PROGRAM, OpnWork.progSel);
}

bool OpnSelectionFromLists(WindowHandle dialog) {
  return OpnSelectionFill(ListSelected(dialog, IDC_OPN_FILE), ListSelected(dialog, IDC_OPN_PROGRAM));
}

void OpnGroupsShow(WindowHandle dialog, int group) {
  const ListQuiet quiet(dialog, IDC_OPN_GROUP);
  ListClear(dialog, IDC_OPN_GROUP);
  for (int i = 0; i < kOpnGroupMax; ++i) {
    char text[kOpnGroupRowSize];
    OpnGroupRowText(i, text, sizeof text);
    ListAdd(dialog, IDC_OPN_GROUP, text);
  }
  ListSelect(dialog, IDC_OPN_GROUP, group);
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
    OpnRowAdd(dialog, IDC_OPN_GROUP_FILES, g.fileName[row], g.filePath[row]);
  }
}

void OpnGroupShow(WindowHandle dialog, int group) {
  char comment[kOpnCommentSize];
  TextCopy(comment, sizeof comment, OpnGroups.OpnGroupTable[group].comment);
  ControlSetText(dialog, IDC_OPN_COMMENT, comment);
  OpnGroupFilesShow(dialog, group);
}

bool OpnGroupListEvent(const Event& event) {
  if (!IsChosen(event, IDC_OPN_GROUP)) return false;
  OpnGroupShow(event.window, OpnGroupOfList(event.window));
  return true;
}

bool OpnCommentTake(WindowHandle dialog, int group) {
  char comment[kOpnCommentSize];
  ControlGetText(dialog, IDC_OPN_COMMENT, comment, sizeof comment);
  return OpnGroupSetComment(group, comment);
}

void OpnRecordShow(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_OPN_RECORD);
  ListClear(dialog, IDC_OPN_RECORD);
  for (int row = 0; row < OpnRecord.recCount; ++row) {
    char text[kOpnRecordRowSize];
    OpnRecordRowText(row, text, sizeof text);
    ListAdd(dialog, IDC_OPN_RECORD, text);
  }
}
