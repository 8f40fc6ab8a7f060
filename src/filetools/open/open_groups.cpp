#include "filetools/open/open_groups.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>

#include "filetools/open/open_record.h"
#include "filetools/open/open_selection.h"
#include "services/program.h"
#include "services/record_file.h"
#include "services/text.h"

OpnGroupsState OpnGroups;

namespace {

constexpr char kName[] = "\\OpnGrpFile.lis";
void Copy(OpnGroupRec (&to)[kOpnGroupMax], const OpnGroupRec (&from)[kOpnGroupMax]) {
  std::copy_n(from, kOpnGroupMax, to);
}

int Add(OpnGroupRec& g, const OpnSelectionRec& file) {
  if (g.fileCount >= kOpnGroupFileMax) return -1;
  OpnTextSet(g.fileName[g.fileCount], file.fileName);
  OpnTextSet(g.filePath[g.fileCount], file.filePath);
  OpnTextSet(g.progName[g.fileCount], file.progName);
  OpnTextSet(g.progPath[g.fileCount], file.progPath);
  ++g.fileCount;
  return 0;
}

bool IsGroup(int group) {
  return group >= 0 && group < kOpnGroupMax;
}

}  // namespace

int OpnGroupLoad() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return -1;
  if (!RecordsRead(data, OpnGroups.aside)) return DataFailShort(data);
  DataClose(data);
  // settled: a group that counts more files than it has room for keeps 30, and all other
  // groups are as they were saved.
  for (OpnGroupRec& g : OpnGroups.aside) g.fileCount = std::min<std::uint8_t>(g.fileCount, kOpnGroupFileMax);
  OpnGroupsBack();
  return 0;
}

int OpnGroupSave() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  if (!RecordsWrite(data, OpnGroups.OpnGroupTable)) return DataFailShort(data);
  DataClose(data);
  return 0;
}

void OpnGroupsKeep() {
  Copy(OpnGroups.aside, OpnGroups.OpnGroupTable);
}

void OpnGroupsBack() {
  Copy(OpnGroups.OpnGroupTable, OpnGroups.aside);
}

int OpnGroupFind(int group) {
  if (!IsGroup(group)) return -1;
  const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
  for (int row = 0; row < g.fileCount; ++row) {
    if (OpnTextSame(g.fileName[row], OpnSelection.fileName) &&
        OpnTextSame(g.filePath[row], OpnSelection.filePath)) {
      return row;
    }
  }
  return -1;
}

int OpnGroupAddFile(int group) {
  return IsGroup(group) ? Add(OpnGroups.OpnGroupTable[group], OpnSelection) : -1;
}

void OpnGroupRemoveFile(int group, int row) {
  if (!IsGroup(group) || row < 0 || row >= OpnGroups.OpnGroupTable[group].fileCount) return;
  OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
  for (auto* column : {g.fileName, g.filePath, g.progName, g.progPath}) {
    OpnRowRemove(column, row, g.fileCount);
  }
  --g.fileCount;
}

int OpnGroupAddRecord(int group) {
  if (!IsGroup(group)) return -1;
  int result = 0;
  for (int row = 0; row < OpnRecord.recCount && result == 0; ++row) {
    result = Add(OpnGroups.OpnGroupTable[group], OpnRecord.rows[row]);
  }
  return result;
}

bool OpnGroupSetComment(int group, const char* text) {
  if (!IsGroup(group)) return false;
  char comment[kOpnCommentSize] = {};
  TextCopy(comment, sizeof comment, text);
  char(&kept)[kOpnCommentSize] = OpnGroups.OpnGroupTable[group].comment;
  if (std::strncmp(comment, kept, sizeof comment) == 0) return false;
  std::memcpy(kept, comment, sizeof comment);
  return true;
}

void OpnGroupRowText(int group, char* text, int size) {
  const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
  const auto room = static_cast<std::size_t>(size);
  if (g.fileCount == 0) {
    TextFormat(text, room, "  %2d", group + 1);
  } else {
    char comment[kOpnCommentSize];
    TextCopy(comment, sizeof comment, g.comment);
    TextFormat(text, room, "* %2d (%s)", group + 1, comment);
  }
}
