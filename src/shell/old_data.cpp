#include "shell/old_data.h"

#include "platform/dialog.h"
#include "platform/memory.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/modal.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/shell_commands.h"

OldFormatState OldFormat;

namespace {

constexpr int kShort = -2;
constexpr int kPicking = 1;
constexpr int kTooLarge = 2;
constexpr int kNoMemory = 3;

// Loading and saving ask under the same title; `path` goes in as a proposal.
template <typename FileDialog>
bool Ask(FileDialog* dialog, OldDataPath& path) {
  FileResult.FileStatus = kPicking;
  return dialog(Program.hMainWnd, "ﾌｧｲﾙﾛｰﾄﾞ", "Files (*.*)", "*.*", Program.RootFolder, path.text,
                sizeof path.text);
}

// kept: the program's name is the text and the error the caption, as in all boxes of
// this kind here, and the errors keep their letters.
void Fail(int status, const char* error) {
  FileResult.FileStatus = status;
  BoxTell(Program.hMainWnd, "ミルレール", error);
}

// Takes the whole open file as the block.
void Take(DataFile& data) {
  std::uint32_t high = 0;
  const std::uint32_t size = FileSize(data.file, &high);
  if (high != 0 || size > kOldDataMax) return Fail(kTooLarge, "DATA Size over 64k byte");
  auto* block = static_cast<unsigned char*>(MemoryAllocate(size));
  if (!block) return Fail(kNoMemory, "Not enough Memory");
  if (!DataRead(data, block, static_cast<int>(size))) {
    MemoryFree(block);
    return Fail(kShort, "Read DATA Error");
  }
  OldDataFree();
  OldFormat.OldData = block;
  OldFormat.OldDataSize = static_cast<std::int32_t>(size);
  FileResult.FileStatus = 0;
}

void Write(const OldDataPath& path) {
  DataFile data;
  if (!DataReplace(data, path.text)) return Fail(-1, "Coud not open MOT file");
  const bool whole = DataWrite(data, OldFormat.OldData, OldFormat.OldDataSize);
  DataClose(data);
  if (!whole) return Fail(kShort, "Write DATA Error");
  OldFormat.path = path;
  FileResult.FileStatus = 0;
}

}  // namespace

void OldDataLoad() {
  OldDataPath path = OldFormat.path;
  if (!Ask(FileDialogLoad, path)) return;
  DataFile data;
  if (!DataOpenRead(data, path.text, OpenMode::ReadDenyWrite)) return Fail(-1, "Coud not open MOT file");
  Take(data);
  DataClose(data);
  if (FileResult.FileStatus == 0) OldFormat.path = path;
}

void OldDataSave() {
  if (OldFormat.path.text[0] == '\0') return OldDataSaveAs();
  if (OldFormat.OldData) Write(OldFormat.path);
}

void OldDataSaveAs() {
  if (!OldFormat.OldData) return;
  OldDataPath path = OldFormat.path;
  if (Ask(FileDialogSave, path)) Write(path);
}

void OldDataFree() {
  MemoryFree(OldFormat.OldData);
  OldFormat.OldData = nullptr;
  OldFormat.OldDataSize = 0;
  OldFormat.path.text[0] = '\0';
}

void CommandOldData(Command command) {
  // One dialog at a time, as with the features.
  if (ModalIsUp()) return;
  if (command == Command::OldLoad) {
    OldDataLoad();
  } else if (command == Command::OldSave) {
    OldDataSave();
  } else {
    OldDataSaveAs();
  }
}
