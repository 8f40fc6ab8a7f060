#include "filetools/open/open_record.h"

#include <algorithm>

#include "filetools/open/open_text.h"
#include "services/text.h"

OpnRecordRec OpnRecord;

namespace {
constexpr int kFileColumn = 36;
constexpr int kProgramColumn = 70;
}  // namespace

void OpnRecordAdd() {
  OpnSelectionRec* end = OpnRecord.rows + OpnRecord.recCount;
  const auto same = [](const OpnSelectionRec& row) { return OpnSelectionSame(row, OpnSelection); };
  if (std::any_of(OpnRecord.rows, end, same)) return;
  if (OpnRecord.recCount < kOpnRecordMax) {
    ++OpnRecord.recCount;
    ++end;
  }
  std::move_backward(OpnRecord.rows, end - 1, end);
  OpnRecord.rows[0] = OpnSelection;
}

void OpnRecordRowText(int row, char* text, int size) {
  const OpnSelectionRec& record = OpnRecord.rows[row];
  const char* program = record.progName[0] != '\0' ? record.progName : "関連プログラム";
  // A name that fills its column is still parted from the program by a blank.
  const bool fills = TextLength(record.fileName, kOpnTextUsed) >= kFileColumn;
  TextFormat(text, static_cast<std::size_t>(size), "%-*.*s%s%-*.*s", kFileColumn, kOpnTextUsed,
             record.fileName, fills ? " " : "", kProgramColumn, kOpnTextUsed, program);
}
