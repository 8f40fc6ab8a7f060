// TakeOpnGrpSetDlg: finds a group and has its files opened.

#include "filetools/open/group_open.h"
#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_search.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_family.h"

namespace {

constexpr int kCalled = 1;

// The two ways to look for groups.
struct Search {
  int button;
  int field;
  int (*run)(const char* text);
  const char* failed;
};
constexpr Search kSearches[] = {
    {IDC_OPN_SEARCH_NAMES, IDC_OPN_NAME_WORDS, OpnSearchNames, "ファイル名検索失敗"},
    {IDC_OPN_SEARCH_COMMENTS, IDC_OPN_COMMENT_WORDS, OpnSearchComments, "コメント検索失敗"},
};

void SearchRun(WindowHandle dialog, const Search& search) {
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
  for (const Search& search : kSearches) ControlSetLimit(dialog, search.field, kOpnSearchSize - 1);
  OpnGroupsShow(dialog, 0);
  OpnGroupShow(dialog, 0);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    Open(event.window);
    return true;
  }
  if (OpnGroupListEvent(event)) return true;
  if (event.kind != EventKind::Pressed) return false;
  for (const Search& search : kSearches) {
    if (event.id != search.button) continue;
    SearchRun(event.window, search);
    return true;
  }
  if (event.id != kCalled) return false;
  OpnGroupStart(OpnGroupOfList(event.window));
  ToolDialogEnd(event.window, kCalled);
  return true;
}

}  // namespace

bool TakeOpnGrpSetDlgRun(WindowHandle owner) {
  return ToolDialogRun(ToolDialog::TakeOpnGrpSetDlg, IDD_TakeOpnGrpSetDlg, owner, Handle) == kCalled;
}
