// DspCalenImageDlg, "イメージ確認".
#include <algorithm>

#include "clock_calendar/calendar/dsp_calen_image.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/calendar_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/painting.h"

namespace {

constexpr int kMargin = 12;
constexpr int kWidest = 900;
constexpr int kHighest = 700;

const CalenImage& ImageOf(const Event& event) {
  return *static_cast<const CalenImage*>(event.context);
}

int WidthOf(const CalenImage& image) {
  return std::clamp(image.width, 0, kWidest);
}
int HeightOf(const CalenImage& image) {
  return std::clamp(image.height, 0, kHighest);
}

// The dialog takes the size of its picture; its button stands below, in the middle.
void Open(const Event& event) {
  const CalenImage& image = ImageOf(event);
  const Rect window = WindowRect(event.window);
  const Rect client = WindowClientRect(event.window);
  const Rect button = DialogUnits(event.window, {0, 0, 60, 14});
  const int width = std::max(WidthOf(image), RectWidth(button)) + 2 * kMargin;
  const int height = HeightOf(image) + RectHeight(button) + 3 * kMargin;
  const int frameWidth = RectWidth(window) - RectWidth(client);
  const int frameHeight = RectHeight(window) - RectHeight(client);
  WindowMove(event.window, std::max(window.left + (RectWidth(client) - width) / 2, 0),
             std::max(window.top + (RectHeight(client) - height) / 2, 0), width + frameWidth,
             height + frameHeight, false);
  WindowMove(Control(event.window, kOkButton), (width - RectWidth(button)) / 2, HeightOf(image) + 2 * kMargin,
             RectWidth(button), RectHeight(button), false);
}

void Paint(const Event& event) {
  Canvas* screen = CanvasGet(event.window);
  if (!screen) return;
  const CalenImage& image = ImageOf(event);
  const Rect area = {kMargin, kMargin, kMargin + WidthOf(image), kMargin + HeightOf(image)};
  if (RectWidth(area) > 0 && RectHeight(area) > 0) DrawSteady(screen, area, image.draw);
  CanvasRelease(screen);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, Paint},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int DspCalenImageDlgRun(SubDialog dialog, WindowHandle owner, CalenImage& image) {
  return SubDialogRun(dialog, IDD_DspCalenImageDlg, owner, Handle, &image);
}

int DspCalenImageDlgRun(SnryDialog dialog, WindowHandle owner, CalenImage& image) {
  return SnryDialogRun(dialog, IDD_DspCalenImageDlg, owner, Handle, &image);
}
