// The music table: its records, its file and its window's state.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "schedule/table/table_scroll.h"
#include "services/record.h"

inline constexpr int kBgmRowMax = 200;
inline constexpr int kBgmPathSize = 600;

// Row, 613 bytes, high byte first
//
// offset  size  field
//      0     1  enabled
//      1     4  hour
//      5     4  minute
//      9     4  reserved
//     13   600  filePath; one that fills it has no terminator
struct BgmRow {
  std::uint8_t enabled;
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t reserved;  // kept: a number of each music row is used by nothing
  char filePath[kBgmPathSize];
};

template <class Io>
constexpr void Fields(Io& io, BgmRow& row) {
  io.U8(row.enabled);
  io.BE32(row.hour);
  io.BE32(row.minute);
  io.BE32(row.reserved);
  io.Bytes(row.filePath);
}
static_assert(RecordSize<BgmRow>() == 613);

// The file, 122604 bytes: all rows are always there
//
// offset    size  field
//      0       4  rowCount
//      4  122600  rows
struct BgmTableState {
  std::int32_t rowCount;  // as the file had it; nothing looks at it
  BgmRow rows[kBgmRowMax];
};

template <class Io>
constexpr void Fields(Io& io, BgmTableState& table) {
  io.BE32(table.rowCount);
  io.Record(table.rows);
}
static_assert(RecordSize<BgmTableState>() == 122604);

struct MusicState {
  WindowHandle hBgmWnd = nullptr;  // EntertainmentBGMDlg
  TableView view = {};
};

extern BgmTableState BgmTable;
extern MusicState Music;

// Each returns what it leaves in FileStatus: 0, -1 when the file cannot be opened or made,
// -2 after a short transfer. What was read before a cut stays.
int BgmLoad(const char* path);
int BgmSave(const char* path);

// The file of a row, from 0; kBgmPathSize bytes are taken.
void BgmFileSet(int row, const char* path);
