// WatchAdustDlg, "時計 詳細設定": the machine's clock, and the hourly performance.
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_preview.h"
#include "clock_calendar/clock/clock_window.h"
#include "clock_calendar/clock/watch_adust.h"
#include "platform/dialog.h"
#include "platform/time.h"
#include "resources/clock_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/rows.h"
#include "services/settings_save.h"
#include "services/sound_list.h"
#include "services/today.h"

WatchAdustState WatchAdust;

namespace {

constexpr int kModes[] = {IDC_ADUST_NEVER, IDC_ADUST_HOURLY, IDC_ADUST_TWELVE};
constexpr int kRepeats[] = {IDC_ADUST_ONCE, IDC_ADUST_AS_HOUR};
constexpr int kSounds[] = {IDC_ADUST_SILENT, IDC_ADUST_SOUND};

// settled: without the right to set the machine's clock the user is told so.
constexpr BoxWords kNotSet{"時計をセットできません", "時計 詳細設定"};

void ExchangeTime(Form& form, WatchAdustState& time) {
  form.Choice(IDC_ADUST_HOUR, time.hour, kHourRows);
  form.Choice(IDC_ADUST_MINUTE, time.minute, kMinuteRows);
  form.Choice(IDC_ADUST_SECOND, time.second, kMinuteRows);
}

// A mode that only a design can set has no button, and stays while none is pressed.
void Exchange(Form& form, ClockStrikeSettings& settings) {
  form.Radio(kModes, settings.mode);
  form.Radio(kRepeats, settings.repeat);
  form.Radio(kSounds, settings.soundOn);
  if (form.Takes()) {
    SoundListTake(form.Dialog(), IDC_ADUST_SOUNDS, settings.sound);
  } else {
    SoundListShow(form.Dialog(), IDC_ADUST_SOUNDS, settings.sound);
  }
}

// --- The machine's clock

void TimeShow(WindowHandle dialog) {
  LocalTime now;
  TimeGetLocal(&now);
  WatchAdust.hour = now.hour;
  WatchAdust.minute = now.minute;
  WatchAdust.second = now.second;
  FormShow(dialog, WatchAdust, ExchangeTime);
}

void TimeSet(WindowHandle dialog) {
  FormTake(dialog, WatchAdust, ExchangeTime);
  LocalTime now;
  TimeGetLocal(&now);
  now.hour = WatchAdust.hour;
  now.minute = WatchAdust.minute;
  now.second = WatchAdust.second;
  if (!TimeSetLocal(&now)) BoxTell(dialog, kNotSet);
}

void TimeDraw() {
  SharedTimeTake();
  WatchAdustTimeForget();
  WatchAdustTimeDraw();
}

// --- The performance

ClockStrikeSettings OnShow(WindowHandle dialog) {
  ClockStrikeSettings settings = ClockStrikeSettingsNow();
  FormTake(dialog, settings, Exchange);
  return settings;
}

void Show(WindowHandle dialog, ClockStrikeSettings settings) {
  FormShow(dialog, settings, Exchange);
}

void Open(WindowHandle dialog) {
  const bool known = ClockDesignAt(WatchAdust.design) != nullptr;
  ControlEnable(dialog, IDC_ADUST_CHECK, known);
  ControlEnable(dialog, IDC_ADUST_DEFAULT, known);
  TimeShow(dialog);
  Show(dialog, ClockStrikeSettingsNow());
}

void Check(WindowHandle dialog) {
  ClockPreviewRun(dialog, WatchAdust.design, OnShow(dialog));
}

void Default(WindowHandle dialog) {
  ClockStrikeSettings settings = OnShow(dialog);
  ClockDesignDefaults(WatchAdust.design, settings);
  Show(dialog, settings);
}

void Accept(WindowHandle dialog) {
  const ClockStrikeSettings settings = OnShow(dialog);
  if (!(settings == ClockStrikeSettingsNow())) {
    ClockStrikeSettingsSet(settings);
    SaveTold(dialog, SysFileWrite() == 0, "時計 詳細設定");
  }
  ToolDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},  {EventKind::Paint, TimeDraw}, {IDC_ADUST_SET, TimeSet},
    {IDC_ADUST_CHECK, Check}, {IDC_ADUST_DEFAULT, Default}, {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void WatchAdustRun(WindowHandle owner, int design) {
  WatchAdust.design = design;
  ToolDialogRun(ToolDialog::WatchAdustDlg, IDD_WatchAdustDlg, owner, Handle);
}
