#include "scenario/storage/snry_scene_file.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "scenario/storage/snry_cast_list.h"
#include "scenario/storage/snry_paths.h"
#include "scenario/storage/snry_tables.h"
#include "services/path.h"
#include "services/record_file.h"

namespace {

constexpr char kMagic[] = "ソルナーデリオン-場面データファイル";
static_assert(sizeof kMagic - 1 == sizeof SnrySceneFile::magic);

// settled: the file of a scene lies in its scenario folder; a name that leads out of it is not
// followed.
bool PathOf(char* path, int size, int folder, int scene) {
  SnryScenePath(path, size, folder, scene);
  folder = std::clamp(folder, 0, kSnryFolderMax - 1);
  scene = std::clamp(scene, 0, kSnrySceneMax - 1);
  return PathIsBareName(SnryMain.scenes[folder][scene].file) && SnryCasts() && SnryLines();
}

template <class T, std::size_t N>
void Clear(T (&table)[N]) {
  for (T& record : table) record = {};
}

// --- Reading

// A count that its table has no room for is content as bad as a file that ends.
bool ReadCount(DataFile& data, int& count, int most) {
  std::uint16_t read = 0;
  if (DataReadBE16(data, read) && read > most) data.failed = true;
  count = read;
  return !data.failed;
}

bool ReadActors(DataFile& data) {
  int lines = 0;
  int casts = 0;
  ReadCount(data, lines, kSnryLineSlots) && RecordsRead(data, SnryLinesTake(lines), lines);
  if (data.failed) return false;
  SnryCopiesClear();
  ReadCount(data, casts, kSnryCastSlots) && RecordsRead(data, SnryCastsTake(casts), casts);
  if (data.failed) return false;
  SnryActorsDrop(lines, casts);
  return true;
}

bool ReadNeeded(DataFile& data) {
  return RecordsRead(data, SnryScene.menus) && RecordsRead(data, SnryScene.events) &&
         RecordsRead(data, SnryScene.randoms) && ReadActors(data) && RecordRead(data, SnryScene.backdrop) &&
         RecordRead(data, SnryScene.title) && RecordsRead(data, SnryScene.sounds) &&
         RecordsRead(data, SnryScene.randomExs);
}

// Of these each record that the file still has counts by itself.
void ReadEventExs(DataFile& data) {
  constexpr int kSize = RecordSize<SnryEventExRec>();
  unsigned char image[kSnryEventMax * kSize];
  const int whole = RecordBytesRead(data, image, sizeof image) / kSize;
  Clear(SnryScene.eventExs);
  for (int i = 0; i < whole; ++i) RecordTake(SnryScene.eventExs[i], image + i * kSize, kSize);
}

// Sections that older files do not have: what is short is cleared, and the next one is
// tried.
void ReadOptional(DataFile& data) {
  if (!RecordsRead(data, SnryScene.keys)) Clear(SnryScene.keys);
  data.failed = false;
  if (!RecordRead(data, SnryScene.scroll)) SnryScene.scroll = {};
  data.failed = false;
  ReadEventExs(data);
  data.failed = false;
  if (!RecordRead(data, SnryScene.table)) SnryScene.table = {};
}

int ReadFrom(DataFile& data) {
  SnrySceneFile head;
  if (!RecordRead(data, head)) return -4;
  if (std::memcmp(head.magic, kMagic, sizeof head.magic) != 0) return -5;
  if (!ReadNeeded(data)) return -4;
  ReadOptional(data);
  return 0;
}

// --- Writing

bool WriteCounted(DataFile& data, int lines, int casts) {
  return DataWriteBE16(data, static_cast<std::uint16_t>(lines)) && RecordsWrite(data, SnryLines(), lines) &&
         DataWriteBE16(data, static_cast<std::uint16_t>(casts)) && RecordsWrite(data, SnryCasts(), casts);
}

int WriteTo(DataFile& data, const SnrySceneRec& scene) {
  SnrySceneFile head;
  std::memcpy(head.magic, kMagic, sizeof head.magic);
  const bool first = RecordWrite(data, head) && RecordsWrite(data, SnryScene.menus) &&
                     RecordsWrite(data, SnryScene.events) && RecordsWrite(data, SnryScene.randoms) &&
                     WriteCounted(data, SnryLineCount(), SnryCastHighest(scene)) &&
                     RecordWrite(data, SnryScene.backdrop) && RecordWrite(data, SnryScene.title);
  if (!first) return -4;
  if (!RecordsWrite(data, SnryScene.sounds)) return -3;
  const bool rest = RecordsWrite(data, SnryScene.randomExs) && RecordsWrite(data, SnryScene.keys) &&
                    RecordWrite(data, SnryScene.scroll) && RecordsWrite(data, SnryScene.eventExs) &&
                    RecordWrite(data, SnryScene.table);
  return rest ? 0 : -4;
}

}  // namespace

int SnryLineCount() {
  const SnryLineRec* lines = SnryLines();
  int count = lines ? kSnryLineSlots : 0;
  while (count > 0 && lines[count - 1].used == 0) --count;
  return count;
}

int SnryCastHighest(const SnrySceneRec& scene) {
  int highest = 0;
  for (int place = 0; place < SnryCastCount(scene); ++place) {
    const int id = scene.cast[place];
    if (SnryCastIsCopy(id) || SnryCharaIsRegistered(id)) highest = std::max(highest, id);
  }
  return highest;
}

int SnrySceneLoad(int folder, int scene) {
  char path[kSnryLongPath];
  DataFile data;
  if (!PathOf(path, sizeof path, folder, scene) || !DataOpenRead(data, path, OpenMode::Read)) return -3;
  const int result = ReadFrom(data);
  DataClose(data);
  return result;
}

int SnrySceneSave(int folder, int scene) {
  char path[kSnryLongPath];
  DataFile data;
  if (!PathOf(path, sizeof path, folder, scene) || !DataReplace(data, path)) return -1;
  const int result = WriteTo(data, SnryMain.scenes[folder][scene]);
  DataClose(data);
  return result;
}
