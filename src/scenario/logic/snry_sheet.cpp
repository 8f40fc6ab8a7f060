#include "scenario/logic/snry_sheet.h"

#include <algorithm>
#include <iterator>

#include "platform/dialog.h"
#include "resources/scenario_logic_ids.h"
#include "scenario/logic/snry_logic.h"
#include "services/dialog_family.h"
#include "services/text.h"

SnrySheetState SnrySheet;

namespace {

template <class T, std::size_t N>
void Copy(const T (&from)[N], T (&to)[N]) {
  std::copy(std::begin(from), std::end(from), std::begin(to));
}

void Keep() {
  Copy(SnryScene.menus, SnrySheet.menus);
  Copy(SnryScene.events, SnrySheet.events);
  Copy(SnryScene.randoms, SnrySheet.randoms);
  Copy(SnryScene.randomExs, SnrySheet.randomExs);
}

// kept: whether an event remembers the entered text is not among what a cancel of a scene's ways
// to move on brings back.
void BringBack() {
  Copy(SnrySheet.menus, SnryScene.menus);
  Copy(SnrySheet.events, SnryScene.events);
  Copy(SnrySheet.randoms, SnryScene.randoms);
  Copy(SnrySheet.randomExs, SnryScene.randomExs);
}

// kept: the scenario does not count as changed by a scene's ways to move on; they are in the
// scene's file once the scene is confirmed.
void Begin() {
  SnrySheet.menu = 0;
  SnrySheet.event = 0;
  SnrySheet.random = 0;
  SnrySheet.item = -1;
  Keep();
}

SheetPage EventPage() {
  const bool table = (SnrySceneNow().tableFlags & kSnryTableForm) != 0;
  return table ? SheetPage{IDD_PSDialog1no2_2, SnryTableEventPage}
               : SheetPage{IDD_PSDialog1no2, SnryEventPage};
}

}  // namespace

// kept: the pages step through the first hundred records, so that the second hundred of a scene's
// events and randoms is out of reach.
int SnryRecordStep(int record, int step) {
  return (record + step + kSnryRecords) % kSnryRecords;
}

void SnryRecordShow(WindowHandle page, int record) {
  char text[16];
  TextFormat(text, sizeof text, "%d", record + 1);
  ControlSetText(page, IDC_PAGE_NUMBER, text);
}

void SnryPageMark(const Event& event) {
  const bool field =
      event.kind == EventKind::Pressed || event.kind == EventKind::Chosen || event.kind == EventKind::Edited;
  if (field) SheetChanged(event.window);
}

void SnryAdvanceSheetRun(WindowHandle owner) {
  Begin();
  const SheetPage pages[] = {
      {IDD_PSDialog1no1, SnryMenuPage}, EventPage(), {IDD_PSDialog1no3, SnryRandomPage}};
  if (!PlainSheetRun(owner, "場面進行方法設定", pages, static_cast<int>(std::size(pages)))) BringBack();
}
