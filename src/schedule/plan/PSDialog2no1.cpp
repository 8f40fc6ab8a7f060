// PSDialog2no1 and PSDialog2no2, the pages of the sheet "休憩時間設定": three rests for each
// of four rows of the week.

#include <algorithm>

#include "platform/dialog.h"
#include "resources/schedule_plan_ids.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_editors.h"
#include "schedule/plan/plan_number.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/rows.h"

namespace {

constexpr int kCharacters = 3;
constexpr int kPageRests = 12;

// What a page shows: 0 for Monday to Thursday, 1 for the others.
struct RestPage {
  int number;
};

ScpRestPeriod& RestOf(const Event& event, int place) {
  const int rest = static_cast<const RestPage*>(event.context)->number * kPageRests + place;
  return Plan.head.ScpRestTable[rest / kScpRestCount][rest % kScpRestCount];
}

void Show(const Event& event) {
  for (int place = 0; place < kPageRests; ++place) {
    const ScpRestPeriod& rest = RestOf(event, place);
    RowsShow(event.window, IDC_SCP_REST_START_FIRST + place, kHourRows, rest.start);
    PlanNumberShow(event.window, IDC_SCP_REST_LENGTH_FIRST + place, kCharacters,
                   static_cast<std::uint32_t>(rest.length));
  }
}

// A rest does not pass midnight.
// kept: whether rests overlap is not looked at, and the stored end of a rest stays as it
// was: start and length are what counts.
void Take(WindowHandle page, int place, ScpRestPeriod& rest) {
  const int start = ListSelected(page, IDC_SCP_REST_START_FIRST + place);
  if (start >= 0) rest.start = start;
  const std::uint32_t length = PlanNumberTake(page, IDC_SCP_REST_LENGTH_FIRST + place, kCharacters);
  const std::int64_t most = std::int64_t{kSclDayHours} - rest.start;
  rest.length =
      static_cast<std::int32_t>(std::clamp<std::int64_t>(length, 0, std::max<std::int64_t>(most, 0)));
}

void Apply(const Event& event) {
  for (int place = 0; place < kPageRests; ++place) Take(event.window, place, RestOf(event, place));
  Plan.dirty = true;
}

bool Handle(const Event& event) {
  constexpr DialogAct kActs[] = {
      {EventKind::Init, Show},
      {EventKind::Apply, Apply},
  };
  if (event.kind == EventKind::Chosen || event.kind == EventKind::Edited) SheetChanged(event.window);
  return DialogActRun(event, kActs);
}

}  // namespace

void PSDialog2no1Run(WindowHandle owner) {
  RestPage first{0};
  RestPage second{1};
  const SheetPage pages[] = {{IDD_PSDialog2no1, Handle, &first}, {IDD_PSDialog2no2, Handle, &second}};
  PlainSheetRun(owner, "休憩時間設定", pages, 2);
}
