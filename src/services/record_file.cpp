#include "services/record_file.h"

int RecordBytesRead(DataFile& data, unsigned char* to, int size) {
  if (data.failed) return 0;
  const int got = FileRead(data.file, to, size);
  data.failed = got != size;
  return std::max(got, 0);
}
