#include "schedule/rates/scl_map.h"

#include <cstring>

#include "schedule/table/row_selection.h"
#include "schedule/table/status_names.h"
#include "services/path.h"
#include "services/program.h"
#include "services/text.h"
#include "world/wef_file.h"
#include "world/world_pictures.h"

SclMapState SclMap;

namespace {

constexpr int kFinished = 1;
constexpr int kFirstScene = 0;
constexpr int kMapPathSize = 1200;
constexpr char kBackgrounds[] = "背景";

// The folder and the name of the application, without its extension.
// settled: the edit files of a schedule's application are those named like its program, beside it.
struct Application {
  char folder[kPathSplitSize + 1];
  char name[kPathSplitSize + 1];
};

// The path of the application as the system takes it.
// settled: a path of an application that begins neither with a drive nor with a backslash
// begins at the program's folder, so that a schedule can travel together with its map.
void PathWhole(const char* path, char* whole, int size) {
  const bool begins = path[0] == '\\' || (path[0] != '\0' && path[1] == ':');
  const auto most = static_cast<std::size_t>(size);
  if (begins) {
    TextCopy(whole, most, path);
  } else {
    TextFormat(whole, most, "%s\\%s", Program.RootFolder, path);
  }
}

Application ApplicationOf(const char* path) {
  Application application{};
  char whole[kMapPathSize];
  PathWhole(path, whole, sizeof whole);
  PathSplit(whole);
  TextCopy(application.folder, sizeof application.folder, PathParts.PathFolder);
  const std::size_t length = std::strlen(application.folder);
  if (length != 0) application.folder[length - 1] = '\0';  // its backslash
  TextCopy(application.name, sizeof application.name, PathParts.PathName);
  if (char* dot = std::strrchr(application.name, '.')) *dot = '\0';
  return application;
}

// The place among the types of a code; -1 for none.
int TypeOf(int code) {
  for (int type = 0; type < SefTypeCount(); ++type) {
    if (code != 0 && Sef.types.numbers[type] == code) return type;
  }
  return -1;
}

// The type of a row of the statuses; -1 for a row that there is not.
int TypeOfRow(int row) {
  for (int type = 0; type < SefTypeCount(); ++type) {
    if (Sef.types.numbers[type] != 0 && row-- == 0) return type;
  }
  return -1;
}

// Runs `set` with the index of each selected row.
// kept: a place on the map or a status goes to a range of lines by their numbers as if they
// counted from 0, so one line later than the range on show.
template <class Set>
void SelectedRows(Set set) {
  if (RowSelection.selectionAnchor == RowSelection.selectionEnd) {
    if (RowSelection.currentRow > 0) set(RowSelection.currentRow - 1);
    return;
  }
  const RowRange range = RowSelectionRange();
  for (int index = range.first; index <= range.last && index < kSclItemMax; ++index) set(index);
}

// A finished line shows its mark only when all lines of its cell are finished.
bool CellIsFinished(int index) {
  for (int other = 0; other < Schedule.SclHeader.count; ++other) {
    const SclItemRec& item = Schedule.SclItemTable[other];
    if (item.hours != 0 && item.doneState != kFinished &&
        Schedule.SclMapColumn[other] == Schedule.SclMapColumn[index] &&
        Schedule.SclMapRow[other] == Schedule.SclMapRow[index]) {
      return false;
    }
  }
  return true;
}

bool HasMark(int index) {
  const SclItemRec& item = Schedule.SclItemTable[index];
  if (item.hours == 0 || item.doneState == 0) return false;
  if (Schedule.SclMapColumn[index] == 0 || Schedule.SclMapRow[index] == 0) return false;
  return item.doneState != kFinished || CellIsFinished(index);
}

void MarkLoad(int type) {
  const SefObject* object = SefObjectAt(Sef.types.objects[type]);
  if (!object || object->chara < 1 || object->chara > kWorldCharaMax) return;
  char path[kMapPathSize];
  WorldPicturePath(path, sizeof path, static_cast<int>(object->chara), object->frame + 1);
  SclMap.marks[type] = DibLoad(path);
  WorldMaskPath(path, sizeof path, static_cast<int>(object->chara), object->frame + 1);
  SclMap.masks[type] = DibLoad(path);
  DibApplyMask(SclMap.marks[type], SclMap.masks[type]);
}

}  // namespace

void SclMapRead() {
  SclMap.read = false;
  if (Schedule.SclMapFile[0] == '\0') return;
  const Application application = ApplicationOf(Schedule.SclMapFile);
  SefRead(application.folder, application.name, kFirstScene);
  WefRead(application.folder, application.name);
  SclMap.read = true;
}

void SclStatusNamesRead() {
  SclMapRead();
}

bool SclStatusName(int code, char* name, int size) {
  if (!SclMap.read) return false;
  const int type = TypeOf(code);
  TextCopy(name, static_cast<std::size_t>(size),
           type >= 0           ? Sef.types.names[type]
           : code == kFinished ? "済み"
                               : "");
  return true;
}

int SclMapPositionCount() {
  return SclMap.read ? Sef.stageCount : 0;
}

void SclMapPositionText(int position, char* text, int size) {
  const SefStage& stage = Sef.stages[position];
  TextFormat(text, static_cast<std::size_t>(size), "%d (横:%d 縦:%d) \"%s\"", position + 1, stage.width,
             stage.height, stage.name);
}

int SclMapPositionFind(int column, int row) {
  for (int position = 0; position < SclMapPositionCount(); ++position) {
    if (Sef.stages[position].width == column && Sef.stages[position].height == row) return position;
  }
  return -1;
}

int SclStatusCount() {
  int count = 0;
  while (SclMap.read && TypeOfRow(count) >= 0) ++count;
  return count;
}

int SclStatusCodeOf(int row) {
  const int type = row >= 0 && SclMap.read ? TypeOfRow(row) : -1;
  return type < 0 ? 0 : Sef.types.numbers[type];
}

int SclStatusRowOf(int code) {
  for (int row = 0; row < SclStatusCount(); ++row) {
    if (SclStatusCodeOf(row) == code) return row;
  }
  return -1;
}

void SclStatusText(int row, char* text, int size) {
  const int type = TypeOfRow(row);
  TextFormat(text, static_cast<std::size_t>(size), "番号=%3d    : %s", Sef.types.numbers[type],
             Sef.types.names[type]);
}

void SclMapPlaceRows(int column, int row) {
  SelectedRows([&](int index) { SclMapPlaceSet(index, column, row); });
}

void SclStatusRows(int code) {
  SelectedRows([&](int index) { SclItem(index).doneState = static_cast<std::uint8_t>(code); });
}

void SclStatusClear() {
  if (RowSelection.currentRow > 0) SclItem(RowSelection.currentRow - 1).doneState = 0;
}

void SclMapPicturesLoad() {
  SclMapPicturesFree();
  if (!SclMap.read) return;
  for (int type = 0; type < SefTypeCount(); ++type) MarkLoad(type);
  if (Wef.sceneCount < 1 || !PathIsBareName(Wef.scenes[0].background)) return;
  // settled: the map's picture lies in the folder of backgrounds beside the application.
  const Application application = ApplicationOf(Schedule.SclMapFile);
  char path[kMapPathSize];
  TextFormat(path, sizeof path, "%s\\%s\\%s", application.folder, kBackgrounds, Wef.scenes[0].background);
  SclMap.picture = DibLoad(path);
}

void SclMapPicturesFree() {
  DibFree(SclMap.picture);
  for (ImageHandle& mark : SclMap.marks) DibFree(mark);
  for (ImageHandle& mask : SclMap.masks) DibFree(mask);
  const bool read = SclMap.read;
  SclMap = {};
  SclMap.read = read;
}

void SclMapClick(int x, int y) {
  if (Sef.grid.cellWidth == 0 || Sef.grid.cellHeight == 0 || x < 0 || y < 0) return;
  const int column = x / Sef.grid.cellWidth;
  const int row = y / Sef.grid.cellHeight;
  if (static_cast<unsigned>(column) >= Sef.grid.columns || static_cast<unsigned>(row) >= Sef.grid.rows)
    return;
  SclMap.column = column + 1;
  SclMap.row = row + 1;
}

void SclMapMarks(void (*mark)(const SclMapMark& mark, void* context), void* context) {
  for (int index = 0; index < Schedule.SclHeader.count; ++index) {
    const int type = HasMark(index) ? TypeOf(Schedule.SclItemTable[index].doneState) : -1;
    if (type < 0) continue;
    mark({Schedule.SclMapColumn[index] - 1, Schedule.SclMapRow[index] - 1, type}, context);
  }
}
