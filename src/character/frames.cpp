#include "character/frames.h"

#include "platform/file.h"
#include "services/program.h"
#include "services/text.h"

FramesState Frames;

namespace {

bool IsRow(int row) {
  return row >= 0 && row < kFrameRowCount;
}

// Frame and kind of "Chara<number>_<frame>.bmp" or "..x.bmp", what stands behind the
// underscore; false when it is no such name.
bool FrameOfName(const char* text, int* frame, bool* mask) {
  int value = 0;
  int digits = 0;
  for (; *text >= '0' && *text <= '9' && digits < 3; ++text, ++digits) value = value * 10 + (*text - '0');
  *mask = *text == 'x' || *text == 'X';
  *frame = value - 1;
  return digits > 0 && value >= 1 && value <= kFrameMax && text[*mask ? 1 : 0] == '.';
}

}  // namespace

void MaskedFrameLoad(MaskedFrame& item, int number, int frame) {
  MaskedFrameFree(item);
  item.picture = DibLoad(CharaBmpPath(number - 1, frame));
  item.mask = DibLoad(CharaMaskPath(number - 1, frame));
  DibApplyMask(item.picture, item.mask);
}

void MaskedFrameFree(MaskedFrame& item) {
  DibFree(item.picture);
  DibFree(item.mask);
  item = {};
}

FrameFiles FrameFilesFind(int number) {
  FrameFiles files{};
  if (number < 0) return files;
  char head[24];
  char pattern[kRootSize + 100];
  const int headLength = TextFormat(head, sizeof head, "Chara%d_", number + 1);
  TextFormat(pattern, sizeof pattern, "%s\\キャラクタ\\%s*.bmp", Program.RootFolder, head);
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  for (bool found = search != kNoSearch; found; found = SearchNext(search, &entry)) {
    int frame = 0;
    bool mask = false;
    // A search also finds files by their old short names.
    if (TextLength(entry.name, sizeof entry.name) <= static_cast<std::size_t>(headLength)) continue;
    if (FrameOfName(entry.name + headLength, &frame, &mask))
      (mask ? files.mask : files.picture)[frame] = true;
  }
  SearchClose(search);
  return files;
}

ImageHandle FramePicture(int row, int frame) {
  return IsRow(row) && frame >= 0 && frame < kFrameMax ? Frames.FrameTable[row][frame] : nullptr;
}

void FramesLoad(int row, int number) {
  if (!IsRow(row)) return;
  const FrameFiles files = FrameFilesFind(number);
  for (int frame = 0; frame < kFrameMax; ++frame) {
    DibFree(Frames.FrameTable[row][frame]);
    Frames.FrameTable[row][frame] = files.picture[frame] ? DibLoad(CharaBmpPath(number, frame)) : nullptr;
  }
}

void FramesFree(int row) {
  if (!IsRow(row)) return;
  for (ImageHandle& picture : Frames.FrameTable[row]) {
    DibFree(picture);
    picture = nullptr;
  }
}
