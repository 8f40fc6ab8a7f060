#include "character/outline.h"

#include <algorithm>

#include "character/frames.h"
#include "platform/file.h"
#include "services/big_endian.h"
#include "services/screen_figures.h"

// The file, big-endian:
//   offset  size  field
//     0     1     frame count, at most 20
//   then for each frame
//     0     4     point count, at most 1024
//     4     4 * n the points, x then y, unsigned 16-bit

namespace {

constexpr int kWalkerMargin = 4;  // of the dialog template

int OpenDwc(int number) {
  return number < 0 ? kNoFile : FileOpen(CharaDwcPath(number), OpenMode::Read);
}

// One frame, from where the file stands.
int ReadFrame(int file, Outline* outline) {
  outline->count = 0;
  unsigned char raw[4 * kOutlinePointMax];
  if (FileRead(file, raw, 4) != 4) return -2;
  const std::uint32_t count = GetBE32(raw);
  if (count > kOutlinePointMax) return -2;  // bounded: more points than the table takes
  const int wanted = static_cast<int>(4 * count);
  const int got = FileRead(file, raw, wanted);
  outline->count = std::max(got, 0) / 4;
  for (int i = 0; i < outline->count; ++i) {
    outline->points[i] = {GetBE16(raw + 4 * i), GetBE16(raw + 4 * i + 2)};
  }
  return got == wanted ? 0 : -3;
}

// The frames of an open file in turn, up to one that fails; their sizes are known only
// from their counts.
int ReadFrames(int file, int frames, Outline (&outlines)[kFrameMax]) {
  int result = 0;
  for (int i = 0; result == 0 && i < frames; ++i) result = ReadFrame(file, &outlines[i]);
  return result;
}

}  // namespace

int OutlineReadCounted(int number, Outline (&outlines)[kFrameMax], int* frameCount) {
  for (Outline& outline : outlines) outline.count = 0;
  const int file = OpenDwc(number);
  if (file == kNoFile) return -1;
  unsigned char count = 0;
  int result = -2;
  if (FileRead(file, &count, 1) == 1) {
    *frameCount = std::min<int>(count, kFrameMax);
    if (count <= kFrameMax) result = ReadFrames(file, count, outlines);
  }
  FileClose(file);
  return result;
}

int OutlineReadAll(int number, Outline (&outlines)[kFrameMax]) {
  for (Outline& outline : outlines) outline.count = 0;
  const int file = OpenDwc(number);
  if (file == kNoFile) return -1;
  unsigned char ignored = 0;
  const int result = FileRead(file, &ignored, 1) == 1 ? ReadFrames(file, kFrameMax, outlines) : -2;
  FileClose(file);
  return result;
}

void OutlineFlipForStage(Outline* outline, int pictureHeight) {
  for (int i = 0; i < outline->count; ++i) {
    outline->points[i].y = Screen.MenuBarHeight + pictureHeight - outline->points[i].y - 1;
  }
}

void OutlineFlipForWalker(Outline* outline, int pictureHeight) {
  for (int i = 0; i < outline->count; ++i) {
    outline->points[i].x += kWalkerMargin;
    outline->points[i].y = kWalkerMargin + pictureHeight - outline->points[i].y - 1;
  }
}

bool OutlinesEqual(const Outline& a, const Outline& b) {
  return a.count == b.count &&
         std::equal(a.points, a.points + a.count, b.points,
                    [](const Point& p, const Point& q) { return p.x == q.x && p.y == q.y; });
}

void OutlineCopy(Outline* to, const Outline& from) {
  to->count = from.count;
  std::copy_n(from.points, from.count, to->points);
}
