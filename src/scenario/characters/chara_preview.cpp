#include "scenario/characters/chara_preview.h"

#include "platform/canvas.h"
#include "platform/dialog.h"
#include "scenario/characters/picture_fit.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "world/world_pictures.h"

namespace {

// The box and the room beside it for the words of a scale, and an edge of one pixel around it.
Rect AreaOf(WindowHandle dialog, const Point& at) {
  const Rect corner = DialogUnits(dialog, {at.x, at.y, at.x, at.y});
  return {corner.left, corner.top, corner.left + kCharaPreviewWidth + 2 + kPictureFitGap + kPictureFitWords,
          corner.top + kCharaPreviewHeight + 2};
}

void Draw(Canvas* canvas, const Rect& area, const WorldPicture& picture) {
  FillArea(canvas, BrushFace(), area);
  const Rect box{area.left + 1, area.top + 1, area.left + 1 + kCharaPreviewWidth,
                 area.top + 1 + kCharaPreviewHeight};
  PictureFitDraw(canvas, box, picture.picture, picture.mask);
}

void DrawEmpty(Canvas* canvas, const Rect& area) {
  FillArea(canvas, BrushFace(), area);
  CanvasPen(canvas, Drawing.Pens[kPen646464]);
  CanvasBrush(canvas, BrushNothing());
  CanvasRectangle(canvas, area.left, area.top, area.left + kCharaPreviewWidth + 2, area.bottom);
}

}  // namespace

void CharaPreviewPaint(WindowHandle dialog, const Point& at, int chara) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  DrawSteady(screen, AreaOf(dialog, at), [&](Canvas* canvas, const Rect& area) {
    const WorldPicture picture = WorldPictureOf(chara);
    picture.picture ? Draw(canvas, area, picture) : DrawEmpty(canvas, area);
  });
  CanvasRelease(screen);
}
