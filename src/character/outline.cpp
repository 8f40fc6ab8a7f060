#include "character/outline.h"

#include <algorithm>

#include "character/chara_paths.h"
#include "services/record_file.h"
#include "services/screen_figures.h"

// The file, big-endian:
//   offset  size  field
//     0     1     frame count, at most 20
//   then for each frame
//     0     4     point count, at most 1024
//     4     4 * n the points, x then y, unsigned 16-bit

template <class Io>
constexpr void Fields(Io& io, Point& point) {
  io.BE16(point.x);
  io.BE16(point.y);
}
static_assert(RecordSize<Point>() == 4);

namespace {

constexpr int kWalkerMargin = 4;  // of the dialog template

bool OpenDwc(DataFile& data, int number) {
  data.file = number < 0 ? kNoFile : FileOpen(CharaDwcPath(number), OpenMode::Read);
  return data.file != kNoFile;
}

// One frame, from where the file stands.
int ReadFrame(DataFile& data, Outline* outline) {
  outline->count = 0;
  std::uint32_t count = 0;
  if (!DataReadBE32(data, count)) return -2;
  if (count > kOutlinePointMax) return -2;  // bounded: an outline of more points than the table takes is none
  unsigned char image[RecordSize<Point>() * kOutlinePointMax];
  const int size = RecordBytesRead(data, image, static_cast<int>(count) * RecordSize<Point>());
  outline->count = size / RecordSize<Point>();
  RecordReader io(image, size);
  for (int i = 0; i < outline->count; ++i) io.Record(outline->points[i]);
  return data.failed ? -3 : 0;
}

// The frames of an open file in turn, up to one that fails; their sizes are known only
// from their counts.
int ReadFrames(DataFile& data, int frames, Outline (&outlines)[kFrameMax]) {
  int result = 0;
  for (int i = 0; result == 0 && i < frames; ++i) result = ReadFrame(data, &outlines[i]);
  return result;
}

}  // namespace

int OutlineReadCounted(int number, Outline (&outlines)[kFrameMax], int* frameCount) {
  for (Outline& outline : outlines) outline.count = 0;
  DataFile data;
  if (!OpenDwc(data, number)) return -1;
  std::uint8_t count = 0;
  int result = -2;
  if (DataReadByte(data, count)) {
    *frameCount = std::min<int>(count, kFrameMax);
    if (count <= kFrameMax) result = ReadFrames(data, count, outlines);
  }
  DataClose(data);
  return result;
}

int OutlineReadAll(int number, Outline (&outlines)[kFrameMax]) {
  for (Outline& outline : outlines) outline.count = 0;
  DataFile data;
  if (!OpenDwc(data, number)) return -1;
  // kept: the number of frames in an outline file says nothing to a walking character, which
  // reads twenty as far as they are there.
  std::uint8_t ignored = 0;
  const int result = DataReadByte(data, ignored) ? ReadFrames(data, kFrameMax, outlines) : -2;
  DataClose(data);
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

void OutlineFlipForBare(Outline* outline, int pictureHeight) {
  for (int i = 0; i < outline->count; ++i) outline->points[i].y = pictureHeight - outline->points[i].y - 1;
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
