// The mail notice.

#include "character/alarm_images.h"
#include "character/notice_window.h"
#include "character/notices.h"
#include "character/walk.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "mail_music/mail/mail_walk.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/mail_music_ids.h"
#include "services/dib.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "services/text.h"

namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;
constexpr Rect kPictureBox = {10, 10, 200, 100};
constexpr int kTextX = 10;
constexpr int kTextY = 100;
constexpr std::int32_t kTicksOfFrame = 5;

// Under the end picture; the picture counts as no height when it is not there.
Point Place() {
  if (Walk.mailState != kMailWalking) return {0, 0};
  const WalkSlot& s = Walk.WalkSlots[Walk.WalkSlotNow];
  const int frame = WalkFrameOf(s.endFrames[0]);
  return {Walk.WalkLastX,
          Walk.WalkLastY + (s.endWindow ? DibHeight(WalkPicture(Walk.WalkSlotNow, frame)) : 0)};
}

void Begin(WindowHandle window) {
  const Point place = Place();
  WindowMove(window, place.x, place.y, kWidth, kHeight, false);
  WindowSetTopmost(window);
  FiveTicksStart(kTicksOfFrame);
  Mail.MailFrame = 0;
}

void Paint(WindowHandle window) {
  AlarmFrameShow(window, kPictureBox, AlarmImages.AlarmRows[kAlarmMail], Mail.MailFrame);
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  CanvasBackTransparent(canvas, true);
  const auto length = static_cast<int>(TextLength(MailSetting.comment, kMailCommentSize));
  if (length != 0) {
    CanvasText(canvas, kTextX, kTextY, MailSetting.comment, length);
  } else {
    CanvasText(canvas, kTextX, kTextY, "メール受信のお知らせ");
  }
  CanvasRelease(canvas);
}

constexpr NoticeWindow kNotice{&Mail.hMailNoticeWnd, Begin, Paint};

bool Proc(const Event& event) {
  if (event.kind == EventKind::Destroy) WalkMailStateSet(0);
  return NoticeEvent(kNotice, event);
}

}  // namespace

void MailNotifyStart() {
  const bool walks = WalkStartMail() == 0;
  WalkMailStateSet(walks ? kMailWalking : kMailAlone);
  if (!walks) MailNoticeOpen();
}

void MailNoticeOpen() {
  if (!Mail.hMailNoticeWnd) DialogOpen(IDD_FlyingBat2X, Program.hMainWnd, Proc);
}

void MailNoticeFrameStep() {
  if (!Mail.hMailNoticeWnd) return;
  Mail.MailFrame = AlarmFrameNext(AlarmImages.AlarmRows[kAlarmMail], Mail.MailFrame);
  SendPaint(Mail.hMailNoticeWnd);
}
