#include "filetools/open/open_record.h"

#include <algorithm>

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

void OpnRecordClear() {
  OpnRecord.recCount = 0;
}

// settled: a name in the open record that is as long as its column, or longer, is not cut,
// and the program follows at once.
void OpnRecordRowText(int row, char* text, int size) {
  const OpnSelectionRec& record = OpnRecord.rows[row];
  const char* program = record.progName[0] != '\0' ? record.progName : "関連プログラム";
  TextFormat(text, static_cast<std::size_t>(size), "%-*.*s%-*.*s", kFileColumn, kOpnTextUsed, record.fileName,
             kProgramColumn, kOpnTextUsed, program);
}
