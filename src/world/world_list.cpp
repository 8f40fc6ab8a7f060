#include "world/world_list.h"

#include <algorithm>
#include <cstring>

#include "services/program.h"
#include "services/record_file.h"
#include "services/text.h"

WorldState World;

namespace {

// Copies a text into an array that may be too short, the cut never inside a pair.
template <std::size_t N>
void TakeName(char (&to)[N], const char* text) {
  const std::size_t length = TextPrefix(text, N - 1);
  std::memcpy(to, text, length);
  std::memset(to + length, 0, N - length);
}

void TakeFigure(WorldFigure& figure, const EdtcFigureRec& record) {
  figure.used = record.used;
  TakeName(figure.name, record.name);
}

void TakeChara(WorldChara& chara, const EdtcCharRec& record) {
  chara.firstKept = record.firstKept;
  chara.secondKept = record.secondKept;
  TakeName(chara.name, record.name);
  for (int frame = 0; frame < kWorldFrames; ++frame) {
    TakeName(chara.frameNames[frame], record.frameNames[frame]);
    chara.figureIds[frame] = record.figures[frame].id;
  }
}

// The counts and the figure table. False when the load ends here; `counted` says whether
// the counts came.
bool ReadFlags(bool& counted) {
  char path[kRootPathSize];
  WorldFlagPath(path, sizeof path);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return false;
  EdtcHead head;
  bool good = RecordRead(data, head) && head.charaCount <= kWorldCharaMax;
  counted = good;
  if (good) {
    World.WorldCharaCount = static_cast<std::int32_t>(head.charaCount);
    // settled: figures of EDTCFLAG.edf that the table has no room for are passed over.
    World.WorldFigureCount =
        static_cast<std::int32_t>(std::min<std::uint32_t>(head.figureCount, kWorldFigureMax));
  }
  for (int i = 0; good && i < World.WorldFigureCount; ++i) {
    EdtcFigureRec record;
    good = RecordRead(data, record);
    if (good) TakeFigure(World.WorldFigures[i], record);
  }
  DataClose(data);
  return good;
}

// How many characters have come.
int ReadCharas() {
  char path[kRootPathSize];
  WorldDataPath(path, sizeof path);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return 0;
  EdtcCharRec record;
  int read = 0;
  while (read < World.WorldCharaCount && RecordRead(data, record)) {
    TakeChara(World.WorldCharas[read++], record);
  }
  DataClose(data);
  return read;
}

const WorldChara* CharaAt(int number) {
  return number >= 1 && number <= World.WorldCharaCount ? &World.WorldCharas[number - 1] : nullptr;
}

}  // namespace

int WorldListRead() {
  bool counted = false;
  const int read = ReadFlags(counted) ? ReadCharas() : 0;
  return counted ? read : -1;
}

const char* WorldCharaName(int number) {
  const WorldChara* chara = CharaAt(number);
  return chara ? chara->name : "";
}

const char* WorldFrameName(int number, int frame) {
  const WorldChara* chara = CharaAt(number);
  return chara && frame >= 1 && frame <= kWorldFrames ? chara->frameNames[frame - 1] : "";
}

const char* WorldFigureName(int id) {
  return id >= 1 && id <= World.WorldFigureCount ? World.WorldFigures[id - 1].name : "";
}

int WorldFlagPath(char* buffer, int size) {
  return RootPath(buffer, size, "\\キャラクタ\\EDTCFLAG.edf");
}

int WorldDataPath(char* buffer, int size) {
  return RootPath(buffer, size, "\\キャラクタ\\EDTCDATA.edf");
}
