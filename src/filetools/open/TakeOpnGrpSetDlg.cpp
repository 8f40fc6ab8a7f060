// TakeOpnGrpSetDlg: finds a group and has its files opened.

#include <initializer_list>

#include "filetools/open/group_open.h"
#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_search.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr int kCalled = 1;

// A way to look for groups.
struct Search {
  int field;
  int (*run)(const char* text);
  const char* failed;
};
constexpr Search kNames = {IDC_OPN_NAME_WORDS, OpnSearchNames, "ファイル名検索失敗"};
constexpr Search kComments = {IDC_OPN_COMMENT_WORDS, OpnSearchComments, "コメント検索失敗"};

template <const Search& search>
void Look(WindowHandle dialog) {
  char text[kOpnSearchSize + 1];  // a byte more, so that a pair that is cut shows
  ControlGetText(dialog, search.field, text, sizeof text);
  if (search.run(text) == 0) {
    BoxTell(dialog, "一致するグループは見つかりませんでした", search.failed);
    return;
  }
  const int group = SerchOpnFileGrpSelDlgRun(dialog);
  if (group < 0) return;
  ListSelect(dialog, IDC_OPN_GROUP, group);
  OpnGroupShow(dialog, group);
}

void Open(WindowHandle dialog) {
  for (const Search& search : {kNames, kComments}) {
    ControlSetLimit(dialog, search.field, kOpnSearchSize - 1);
  }
  OpnGroupsShow(dialog, 0);
  OpnGroupShow(dialog, 0);
}

void Call(WindowHandle dialog) {
  OpnGroupStart(OpnGroupOfList(dialog));
  ToolDialogEnd(dialog, kCalled);
}

bool FieldHasFocus(WindowHandle dialog, const Search& search) {
  return WindowHasFocus(Control(dialog, search.field));
}

// settled: Enter in a search field searches, as the button beside it does.
void Accept(WindowHandle dialog) {
  if (FieldHasFocus(dialog, kNames)) {
    Look<kNames>(dialog);
  } else if (FieldHasFocus(dialog, kComments)) {
    Look<kComments>(dialog);
  } else {
    Call(dialog);
  }
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_OPN_GROUP, EventKind::Chosen, OpnGroupChosen},
    {IDC_OPN_SEARCH_NAMES, Look<kNames>},
    {IDC_OPN_SEARCH_COMMENTS, Look<kComments>},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

bool TakeOpnGrpSetDlgRun(WindowHandle owner) {
  return ToolDialogRun(ToolDialog::TakeOpnGrpSetDlg, IDD_TakeOpnGrpSetDlg, owner, Handle) == kCalled;
}
