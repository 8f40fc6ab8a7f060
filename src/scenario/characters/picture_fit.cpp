#include "scenario/characters/picture_fit.h"

#include <algorithm>

#include "character/alarm_images.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

// What there is of a picture: with its mask, or alone.
void DrawWhole(Canvas* canvas, int x, int y, ImageHandle picture, ImageHandle mask) {
  if (mask) {
    MaskedDraw(canvas, x, y, picture, mask);
  } else {
    DibDraw(canvas, x, y, picture);
  }
}

int Part(int whole, int of, int from) {
  return std::max(1, static_cast<int>(static_cast<long long>(whole) * of / from));
}

void DrawScaled(Canvas* canvas, const Rect& box, const PictureFit& fit, ImageHandle picture,
                ImageHandle mask) {
  const int width = DibWidth(picture);
  const int height = DibHeight(picture);
  Canvas* scratch = CanvasMemory(canvas, width, height);
  if (!scratch) return;
  FillArea(scratch, BrushFace(), {0, 0, width, height});
  DrawWhole(scratch, 0, 0, picture, mask);
  CanvasStretch(canvas, box.left, box.top, fit.width, fit.height, scratch, 0, 0, width, height);
  CanvasRelease(scratch);
}

void DrawScale(Canvas* canvas, const Rect& box, const PictureFit& fit) {
  char text[64];
  TextFormat(text, sizeof text, "× %f 縮尺", fit.scale);
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, MakeColour(0, 0, 0));
  CanvasText(canvas, box.left + fit.width + kPictureFitGap, box.top, text);
}

}  // namespace

PictureFit PictureFitOf(int width, int height, int boxWidth, int boxHeight) {
  if (width <= boxWidth && height <= boxHeight) return {width, height, 1};
  const auto across = static_cast<double>(boxWidth) / width;
  const auto down = static_cast<double>(boxHeight) / height;
  if (across <= down) return {boxWidth, Part(height, boxWidth, width), across};
  return {Part(width, boxHeight, height), boxHeight, down};
}

void PictureFitDraw(Canvas* canvas, const Rect& box, ImageHandle picture, ImageHandle mask) {
  if (!DibBits(picture)) return;
  const PictureFit fit = PictureFitOf(DibWidth(picture), DibHeight(picture), RectWidth(box), RectHeight(box));
  if (fit.scale >= 1) return DrawWhole(canvas, box.left, box.top, picture, mask);
  DrawScaled(canvas, box, fit, picture, mask);
  DrawScale(canvas, box, fit);
}
