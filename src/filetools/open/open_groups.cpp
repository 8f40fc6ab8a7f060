#include "filetools/open/open_groups.h"

#include <cstring>
#include <initializer_list>

#include "filetools/open/open_record.h"
#include "filetools/open/open_text.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"

OpnGroupsState OpnGroups;

namespace {

constexpr char kName[] = "\\OpnGrpFile.lis";
constexpr int kRecordSize = 36859;
static_assert(kRecordSize * kOpnGroupMax == kOpnGroupFileSize);

// The table as it stands in a file: what is read, or the copy aside.
unsigned char image[kOpnGroupFileSize];

// Reader and writer go through the one list of fields; `field` moves a block.
template <class Field>
bool Fields(OpnGroupRec& g, Field field) {
  return field(&g.fileCount, 1) && field(g.fileName, sizeof g.fileName) &&
         field(g.filePath, sizeof g.filePath) && field(g.progName, sizeof g.progName) &&
         field(g.progPath, sizeof g.progPath) && field(g.reserved, sizeof g.reserved) &&
         field(g.comment, sizeof g.comment);
}

void FromImage() {
  const unsigned char* at = image;
  for (OpnGroupRec& group : OpnGroups.OpnGroupTable) {
    Fields(group, [&](void* to, std::size_t size) {
      std::memcpy(to, at, size);
      at += size;
      return true;
    });
  }
}

void ToImage() {
  unsigned char* at = image;
  for (OpnGroupRec& group : OpnGroups.OpnGroupTable) {
    Fields(group, [&](const void* from, std::size_t size) {
      std::memcpy(at, from, size);
      at += size;
      return true;
    });
  }
}

bool CountsFit() {
  for (int group = 0; group < kOpnGroupMax; ++group) {
    if (image[group * kRecordSize] > kOpnGroupFileMax) return false;
  }
  return true;
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
  // One read in place of 1400: nobody sees the difference but the user, who waits.
  if (!DataRead(data, image, kOpnGroupFileSize) || !CountsFit()) return DataFailShort(data);
  DataClose(data);
  FromImage();
  return 0;
}

int OpnGroupSave() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  for (OpnGroupRec& group : OpnGroups.OpnGroupTable) {
    const auto write = [&](const void* from, std::size_t size) {
      return DataWrite(data, from, static_cast<int>(size));
    };
    if (!Fields(group, write)) return DataFailShort(data);
  }
  DataClose(data);
  return 0;
}

void OpnGroupsKeep() {
  ToImage();
}

void OpnGroupsBack() {
  FromImage();
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
  if (!IsGroup(group)) return -1;
  OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
  if (g.fileCount >= kOpnGroupFileMax) return -1;
  OpnTextSet(g.fileName[g.fileCount], OpnSelection.fileName);
  OpnTextSet(g.filePath[g.fileCount], OpnSelection.filePath);
  OpnTextSet(g.progName[g.fileCount], OpnSelection.progName);
  OpnTextSet(g.progPath[g.fileCount], OpnSelection.progPath);
  ++g.fileCount;
  return 0;
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
  int result = 0;
  OpnSelectionSave = OpnSelection;
  for (int row = 0; row < OpnRecord.recCount && result == 0; ++row) {
    OpnSelection = OpnRecord.rows[row];
    result = OpnGroupAddFile(group);
  }
  OpnSelection = OpnSelectionSave;
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
