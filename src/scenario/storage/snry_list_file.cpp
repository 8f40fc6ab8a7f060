#include "scenario/storage/snry_list_file.h"

#include <algorithm>
#include <cstring>

#include "scenario/storage/snry_paths.h"
#include "services/record_file.h"
#include "services/text.h"

namespace {

constexpr char kMagic[] = "ソルナーデリオン メインシナリオファイル リスト";
static_assert(sizeof kMagic - 1 == sizeof SnryListFile::magic);

bool IsList(const SnryListFile& head) {
  return std::memcmp(head.magic, kMagic, sizeof head.magic) == 0;
}

int ReadFrom(DataFile& data) {
  SnryListFile head;
  if (!RecordRead(data, head)) return -3;
  if (!IsList(head)) return -4;
  const auto count = static_cast<std::int32_t>(std::min<std::uint32_t>(head.count, kSnryListMax));
  if (!RecordsRead(data, SnryList.rows, count)) return -3;
  SnryList.count = count;
  return 0;
}

bool IsRowOfScenario(std::int32_t row) {
  return row >= 0 && row < SnryList.count && std::strcmp(SnryList.rows[row].folder, Scenario.mainFolder) == 0;
}

// settled: a save puts a scenario into its own row of the list of scenarios, also when the list
// has become another one since the scenario was loaded or made; without such a row one is added,
// and the row of another scenario is never taken.
std::int32_t RowOfScenario() {
  if (IsRowOfScenario(Scenario.listIndex)) return Scenario.listIndex;
  const int row = SnryListFind(Scenario.mainFolder);
  return row >= 0 ? row : SnryList.count;
}

}  // namespace

int SnryListRead() {
  char path[kSnryLongPath];
  SnryListPath(path, sizeof path);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return -1;
  const int result = ReadFrom(data);
  DataClose(data);
  return result;
}

int SnryListWrite() {
  char path[kSnryLongPath];
  SnryListPath(path, sizeof path);
  SnryListFile head{};
  std::memcpy(head.magic, kMagic, sizeof head.magic);
  head.count = static_cast<std::uint32_t>(SnryList.count);
  DataFile data;
  const bool written =
      DataReplace(data, path) && RecordWrite(data, head) && RecordsWrite(data, SnryList.rows, SnryList.count);
  DataClose(data);
  return written ? 0 : -1;
}

void SnryListPut() {
  const std::int32_t row = RowOfScenario();
  if (row >= kSnryListMax) return;
  SnryList.rows[row] = {};
  SnryList.rows[row].used = 1;
  TextCopy(SnryList.rows[row].folder, sizeof SnryList.rows[row].folder, Scenario.mainFolder);
  TextCopy(SnryList.rows[row].title, sizeof SnryList.rows[row].title, SnryMain.title);
  SnryList.count = std::max(SnryList.count, row + 1);
}

void SnryListRemove(int row) {
  if (row < 0 || row >= SnryList.count) return;
  std::copy(SnryList.rows + row + 1, SnryList.rows + SnryList.count, SnryList.rows + row);
  --SnryList.count;
}

int SnryListFind(const char* folder) {
  for (int row = 0; row < SnryList.count; ++row) {
    if (std::strcmp(SnryList.rows[row].folder, folder) == 0) return row;
  }
  return -1;
}

void SnryListRowText(int row, char* text, int size) {
  char whole[kSnryTitleSize + kSnryPathSize + 8];
  const SnryListRec& scenario = SnryList.rows[row];
  TextFormat(whole, sizeof whole, "[%s]-%s", scenario.title, scenario.folder);
  TextCopyWhole(text, static_cast<std::size_t>(size), whole);
}
