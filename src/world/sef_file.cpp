#include "world/sef_file.h"

#include <algorithm>

#include "services/record_file.h"
#include "services/text.h"
#include "world/edit_file.h"

SefState Sef;

namespace {

constexpr char kMagic[] = "シナリオ シーン 編集ファイル";

// Reads as many records as the file claims to have; the table keeps the whole ones that it
// has room for.
// settled: objects and stage sizes of a scene edit file that the table has no room for are
// passed over.
template <class T, int N>
void ReadTable(DataFile& data, std::uint32_t claimed, T (&table)[N], int& count) {
  for (std::uint32_t i = 0; i < claimed && !data.failed; ++i) {
    T record{};
    if (!RecordRead(data, record) || count >= N) continue;
    table[count++] = record;
  }
}

void ReadAll(DataFile& data) {
  std::uint32_t objects = 0;
  std::uint32_t stages = 0;
  DataReadBE32(data, objects);
  if (!data.failed) RecordRead(data, Sef.grid);
  ReadTable(data, objects, Sef.objects, Sef.objectCount);
  DataReadBE32(data, stages);
  ReadTable(data, stages, Sef.stages, Sef.stageCount);
  if (data.failed) return;
  SefTypes types{};
  if (RecordRead(data, types)) Sef.types = types;
}

void Clear() {
  Sef.objectCount = 0;
  Sef.stageCount = 0;
  Sef.grid = {};
  Sef.types = {};
}

}  // namespace

int SefRead(const char* folder, const char* name, int scene) {
  char path[kEditPathSize];
  TextFormat(path, sizeof path, "%s\\%s_%d_%d.sef", folder, name, scene / kSefAreaScenes + 1,
             scene % kSefAreaScenes + 1);
  Clear();
  DataFile data;
  const int opened = EditFileOpen(data, path, kMagic);
  if (opened != 0) return opened;
  ReadAll(data);
  return EditFileEnd(data);
}

const SefObject* SefObjectAt(int number) {
  return number >= 1 && number <= Sef.objectCount ? &Sef.objects[number - 1] : nullptr;
}

int SefTypeCount() {
  return std::min<int>(Sef.types.count, kSefTypes);
}
