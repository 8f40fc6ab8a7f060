// Records and tables of them, read from and written to data files: services/record.h
// tells how they lie there, services/data_file.h how a file goes on after a short
// transfer.
#pragma once

#include "services/data_file.h"
#include "services/record.h"

// Reads up to `size` bytes in one transfer. Returns how many came; fewer than asked
// for make the file fail.
int RecordBytesRead(DataFile& data, unsigned char* to, int size);

// Bytes of one transfer of a table.
inline constexpr int kRecordTransfer = 65536;
template <class T>
inline constexpr int kRecordBatch = std::max(1, kRecordTransfer / RecordSize<T>());

// Reads a record in one transfer. False when the file is too short: the fields before
// the cut have been taken then, those behind it are as they were.
template <class T>
bool RecordRead(DataFile& data, T& record) {
  unsigned char image[RecordSize<T>()];
  const int size = RecordBytesRead(data, image, RecordSize<T>());
  return RecordTake(record, image, size);
}

// Writes a record in one transfer; bytes that no field owns are 0.
template <class T>
bool RecordWrite(DataFile& data, const T& record) {
  unsigned char image[RecordSize<T>()] = {};
  RecordPut(record, image, RecordSize<T>());
  return DataWrite(data, image, RecordSize<T>());
}

// The same for `count` records one behind the other, as many in a transfer as a batch
// holds.
template <class T>
bool RecordsRead(DataFile& data, T* records, int count) {
  constexpr int kSize = RecordSize<T>();
  unsigned char image[kRecordBatch<T> * kSize];
  for (int done = 0; done < count && !data.failed; done += kRecordBatch<T>) {
    const int batch = std::min(kRecordBatch<T>, count - done);
    const int got = RecordBytesRead(data, image, batch * kSize);
    const int whole = got / kSize;  // whose size the compiler knows
    for (int i = 0; i < whole; ++i) RecordTake(records[done + i], image + i * kSize, kSize);
    if (whole < batch) RecordTake(records[done + whole], image + whole * kSize, got - whole * kSize);
  }
  return !data.failed;
}
template <class T>
bool RecordsWrite(DataFile& data, const T* records, int count) {
  unsigned char image[kRecordBatch<T> * RecordSize<T>()] = {};
  for (int done = 0; done < count && !data.failed; done += kRecordBatch<T>) {
    const int batch = std::min(kRecordBatch<T>, count - done);
    RecordWriter io(image, batch * RecordSize<T>());
    for (int i = 0; i < batch; ++i) io.Record(const_cast<T&>(records[done + i]));
    DataWrite(data, image, batch * RecordSize<T>());
  }
  return !data.failed;
}
// Writes a file from its first byte on in transfers of kRecordTransfer bytes, whatever the
// sizes of what is put into it: a large file of many tables is written much faster in whole
// pieces. The last piece goes with Finish. Once a write has failed, nothing more is written.
class RecordStream {
 public:
  explicit RecordStream(DataFile& data) : data_(data) {}

  // A record of at most 4096 bytes; those that no field owns are 0.
  template <class T>
  void Put(const T& record) {
    constexpr int kSize = RecordSize<T>();
    static_assert(kSize <= kSlack);
    if constexpr (!RecordIsWhole<T>()) std::memset(image_ + used_, 0, kSize);
    RecordPut(record, image_ + used_, kSize);
    Pass(kSize);
  }
  // At most 4096 bytes as they are.
  void PutBytes(const void* bytes, int size) {
    std::memcpy(image_ + used_, bytes, static_cast<std::size_t>(size));
    Pass(size);
  }
  // Returns false when a write has failed.
  bool Finish() { return DataWrite(data_, image_, used_); }

 private:
  static constexpr int kSlack = 4096;

  void Pass(int more) {
    used_ += more;
    if (used_ < kRecordTransfer) return;
    DataWrite(data_, image_, kRecordTransfer);
    used_ -= kRecordTransfer;
    std::memmove(image_, image_ + kRecordTransfer, static_cast<std::size_t>(used_));
  }

  DataFile& data_;
  int used_ = 0;
  unsigned char image_[kRecordTransfer + kSlack];
};

template <class T, std::size_t N>
bool RecordsRead(DataFile& data, T (&table)[N]) {
  return RecordsRead(data, table, static_cast<int>(N));
}
template <class T, std::size_t N>
bool RecordsWrite(DataFile& data, const T (&table)[N]) {
  return RecordsWrite(data, table, static_cast<int>(N));
}
