#include "mail_music/music/music.h"

#include "services/record_file.h"
#include "services/text.h"

BgmTableState BgmTable;
MusicState Music;

int BgmLoad(const char* path) {
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::ReadDenyWrite)) return FileResult.FileStatus;
  if (!RecordRead(data, BgmTable)) return DataFailStatus(data);
  DataClose(data);
  return FileResult.FileStatus = 0;
}

int BgmSave(const char* path) {
  DataFile data;
  if (!DataReplace(data, path)) {
    DataClose(data);
    return FileResult.FileStatus;
  }
  if (!RecordWrite(data, BgmTable)) return DataFailStatus(data);
  DataClose(data);
  return FileResult.FileStatus = 0;
}

void BgmFileSet(int row, const char* path) {
  if (row >= 0 && row < kBgmRowMax) TextCopy(BgmTable.rows[row].filePath, kBgmPathSize, path);
}
