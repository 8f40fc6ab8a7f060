#include "world/world_list.h"

#include <cstring>

#include "services/big_endian.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"

WorldState World;

namespace {

// Copies a text field of a record; both cut at `limit` bytes and at the
// terminator, the cut never inside a pair.
void TakeName(char* to, int limit, const unsigned char* field, int fieldSize) {
  char text[kWorldFigureNameSize + 1] = {};
  std::memcpy(text, field, static_cast<std::size_t>(fieldSize));
  const std::size_t length = TextPrefix(text, static_cast<std::size_t>(limit));
  std::memcpy(to, text, length);
  std::memset(to + length, 0, static_cast<std::size_t>(limit) + 1 - length);
}

void TakeFigure(WorldFigure& figure, const unsigned char* record) {
  figure.used = record[kEdtcFigureUsed] != 0;
  TakeName(figure.name, kWorldFigureNameSize, record + kEdtcFigureName, kWorldFigureNameSize);
}

void TakeChara(WorldChara& chara, const unsigned char* record) {
  chara.firstKept = record[kEdtcCharFirstKept];
  chara.secondKept = record[kEdtcCharSecondKept];
  TakeName(chara.name, kWorldNameSize, record + kEdtcCharName, kWorldNameSize);
  for (int frame = 0; frame < kWorldFrames; ++frame) {
    TakeName(chara.frameNames[frame], kWorldFrameNameMax,
             record + kEdtcCharFrameNames + kWorldFrameNameSize * frame, kWorldFrameNameSize);
  }
  for (int i = 0; i < kWorldFigureIds; ++i) {
    chara.figureIds[i] = static_cast<std::uint16_t>(GetBE32(record + kEdtcCharFigureIds + 4 * i));
  }
}

// The counts and the figure table. False when the load ends here.
bool ReadFlags() {
  char path[kRootPathSize];
  WorldFlagPath(path, sizeof path);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return false;
  unsigned char header[kEdtcHeaderSize];
  bool good = DataRead(data, header, sizeof header);
  const std::uint32_t charas = good ? GetBE32(header + kEdtcCharaCount) : 0;
  const std::uint32_t figures = good ? GetBE32(header + kEdtcFigureCount) : 0;
  good = good && charas <= kWorldCharaMax && figures <= kWorldFigureMax;
  if (good) {
    World.WorldCharaCount = static_cast<std::int32_t>(charas);
    World.WorldFigureCount = static_cast<std::int32_t>(figures);
  }
  for (int i = 0; good && i < World.WorldFigureCount; ++i) {
    unsigned char record[kEdtcFigureSize];
    good = DataRead(data, record, sizeof record);
    if (good) TakeFigure(World.WorldFigures[i], record);
  }
  DataClose(data);
  return good;
}

void ReadCharas() {
  char path[kRootPathSize];
  WorldDataPath(path, sizeof path);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return;
  unsigned char record[kEdtcCharSize];
  for (int i = 0; i < World.WorldCharaCount && DataRead(data, record, sizeof record); ++i) {
    TakeChara(World.WorldCharas[i], record);
  }
  DataClose(data);
}

const WorldChara* CharaAt(int number) {
  return number >= 1 && number <= World.WorldCharaCount ? &World.WorldCharas[number - 1] : nullptr;
}

}  // namespace

void WorldListRead() {
  if (ReadFlags()) ReadCharas();
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
