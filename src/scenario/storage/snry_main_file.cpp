#include "scenario/storage/snry_main_file.h"

#include <algorithm>
#include <cstring>

#include "scenario/storage/snry_paths.h"
#include "services/record_file.h"
#include "services/text.h"
#include "world/world_pictures.h"

namespace {

constexpr char kMagic[] = "ソルナーデリオン シナリオメイン設定ファイル";
static_assert(sizeof kMagic - 1 == sizeof SnryMainFile::magic);

bool IsMain(const char* magic) {
  return std::memcmp(magic, kMagic, sizeof SnryMainFile::magic) == 0;
}

// The sections behind the head, in their order. A way reads, writes or measures.
template <class Way>
constexpr void Sections(Way& way, SnryMainState& main) {
  way.Table(main.folders, kSnryFolderMax);
  for (std::uint16_t& count : main.sceneCounts) way.Count(count, kSnrySceneMax);
  for (SnrySceneRec(&scenes)[kSnrySceneMax] : main.scenes) way.Table(scenes, kSnrySceneMax);
  way.Count(main.registeredCount, 0xFFFF);
  way.Table(main.charMotions, kSnryCharaMax);
  way.Count(main.paraCount, kSnryParaMax);
  way.Table(main.paras, kSnryParaMax);
  way.Count(main.charaCount, kSnryCharaMax);
  way.Table(main.charaOrders, kSnryCharaMax);
  way.Bytes(main.registered, kSnryCharaMax);
  way.Table(main.charaNames, kSnryCharaMax);
  way.Table(main.castNames, kSnryCharaMax);
  way.Bytes(main.charaKept, kSnryCharaMax);
  way.Count(main.motionCount, kSnryMotionMax);
  way.Table(main.motionNames, kSnryMotionMax);
  way.Table(main.labels, kSnryLabelMax);
  way.Table(&main.options, 1);
}

struct Reading {
  DataFile& data;
  template <class T>
  void Table(T* records, int count) {
    RecordsRead(data, records, count);
  }
  void Bytes(std::uint8_t* bytes, int count) { DataRead(data, bytes, count); }
  // settled: a count of a main file beyond its table is taken as the whole table, so that one wrong number
  // does not cost the scenario.
  void Count(std::uint16_t& count, int most) {
    if (DataReadBE16(data, count)) count = static_cast<std::uint16_t>(std::min<int>(count, most));
  }
};

struct Writing {
  RecordStream& to;
  template <class T>
  void Table(T* records, int count) {
    for (int i = 0; i < count; ++i) to.Put(records[i]);
  }
  void Bytes(const std::uint8_t* bytes, int count) { to.PutBytes(bytes, count); }
  void Count(std::uint16_t count, int) { to.Put(SnryNumberRec{count}); }
};

struct Measuring {
  int size;
  template <class T>
  constexpr void Table(T*, int count) {
    size += RecordSize<T>() * count;
  }
  constexpr void Bytes(std::uint8_t*, int count) { size += count; }
  constexpr void Count(std::uint16_t&, int) { size += 2; }
};
consteval int FileSizeTold() {
  Measuring way{RecordSize<SnryMainFile>()};
  Sections(way, SnryMain);
  return way.size;
}
static_assert(FileSizeTold() == kSnryMainSize);

bool ReadSections(DataFile& data, const SnryMainFile& head) {
  // settled: the folder that a main file names is passed over: the scenario is where it was found,
  // so that a folder that has been moved is not saved to its old place.
  TextCopy(SnryMain.title, sizeof SnryMain.title, head.title);
  SnryMain.folderCount = std::min<std::uint16_t>(head.folderCount, kSnryFolderMax);
  Reading way{data};
  Sections(way, SnryMain);
  return !data.failed;
}

int ReadFrom(DataFile& data) {
  SnryMainFile head;
  if (!RecordRead(data, head)) return -3;
  if (!IsMain(head.magic)) return -4;
  return ReadSections(data, head) ? 0 : -3;
}

SnryMainFile Head() {
  SnryMainFile head{};
  std::memcpy(head.magic, kMagic, sizeof head.magic);
  TextCopy(head.folder, sizeof head.folder, Scenario.mainFolder);
  TextCopy(head.title, sizeof head.title, SnryMain.title);
  head.folderCount = SnryMain.folderCount;
  return head;
}

// Writes all sections over a file that is there.
bool WriteAll(const char* path) {
  DataFile data;
  data.file = FileOpen(path, OpenMode::ReadWrite);
  data.failed = data.file == kNoFile;
  RecordStream stream(data);
  stream.Put(Head());
  Writing way{stream};
  Sections(way, SnryMain);
  const bool written = stream.Finish();
  DataClose(data);
  return written;
}

bool IsThere(const char* path) {
  const int file = FileOpen(path, OpenMode::Read);
  FileClose(file);
  return file != kNoFile;
}

bool Make(const char* path) {
  const int file = FileCreate(path);
  FileClose(file);
  return file != kNoFile;
}

}  // namespace

int SnryMainStatus() {
  if (!FolderSetCurrent(Scenario.mainFolder)) return -1;
  char path[kSnryLongPath];
  SnryMainPath(path, sizeof path);
  const int file = FileOpen(path, OpenMode::Read);
  if (file == kNoFile) return -2;
  char magic[sizeof SnryMainFile::magic];
  const bool whole = FileRead(file, magic, sizeof magic) == static_cast<int>(sizeof magic);
  FileClose(file);
  return whole && IsMain(magic) ? 0 : -3;
}

int SnryMainRead() {
  char path[kSnryLongPath];
  SnryMainPath(path, sizeof path);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return -1;
  const int result = ReadFrom(data);
  DataClose(data);
  WorldPicturesFree();
  return result;
}

// kept: the main file of a scenario is written, read back and written again, and what is there is deleted
// first; a file that is no main file is not overwritten, and the save fails.
int SnrySaveMain() {
  char path[kSnryLongPath];
  SnryMainPath(path, sizeof path);
  if (SnryMainStatus() == 0) FileDelete(path);
  if (IsThere(path) || !Make(path)) return -1;
  if (!WriteAll(path)) return -3;
  const int read = SnryMainRead();
  if (read != 0) return read;
  if (!WriteAll(path)) return -3;
  Scenario.castNamesChanged = false;
  return 0;
}
