// Records: how a plain struct lies in the bytes of a data file.
//
// A record is a struct with named fields and one list of them, in the order in
// which they lie in the file, beside its table of offsets:
//
//   template <class Io>
//   constexpr void Fields(Io& io, TimedRow& row) {
//     io.U8(row.enabled);
//     io.At(2);
//     io.LE16(row.hour);
//     io.Text(row.comment);
//     io.At(138);
//   }
//   static_assert(RecordSize<TimedRow>() == 138);
//
// Everything else follows from that list: RecordReader takes the fields out of
// bytes, RecordWriter puts them into bytes, RecordSize and RecordOffset measure.
// services/record_file.h moves records between structs and data files.
//
// What an Io understands:
//
//   U8 LE16 LE32 BE16 BE32  a number of that width, low or high byte first; a bool,
//                           an enum, an integer, or an array of them in any number
//                           of dimensions. The bits are taken as they are: a field
//                           of the number's own width keeps a sign, a wider one gets
//                           zeros above. A bool is true for anything but 0 and is
//                           written as 1.
//   Bytes                   an array of bytes, kept as it is
//   Text                    an array of characters as wide as in the file. A
//                           text that fills it loses its last byte to the terminator
//   Text(array, width)      the same in an array that is wider than in the file: a
//                           text that fills the file's field keeps all its bytes
//   Record                  a record inside the record, or an array of them
//   At(offset)              the next field begins at this offset of its record, or the
//                           record ends there; bytes that no field owns are passed
//                           over by the reader and left as they are by the writer
//
// An array's length is part of its type, so no field can be given another length
// than it has.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

// What a number's bytes are, and in which order.
enum class RecordOrder { LowFirst, HighFirst };

// A field, or the first element of a table in any number of dimensions.
template <class T>
constexpr auto* RecordFirst(T& field) {
  if constexpr (std::is_array_v<T>) {
    return RecordFirst(field[0]);
  } else {
    return &field;
  }
}

// What all kinds of Io share: the vocabulary above, told to `Self` as
//
//   Number(value, width, order)   one number
//   Block(first, size, unit)      bytes that lie in memory as in the file; of a cut block
//                                 the whole units are there
//   Chars(first, width, room)     a text whose array has `room` bytes
//   MoveTo(position)              from the first byte of all
//   Position()
template <class Self>
class RecordIo {
 public:
  template <class T>
  constexpr void U8(T& field) {
    Numbers<1, RecordOrder::LowFirst>(field);
  }
  template <class T>
  constexpr void LE16(T& field) {
    Numbers<2, RecordOrder::LowFirst>(field);
  }
  template <class T>
  constexpr void LE32(T& field) {
    Numbers<4, RecordOrder::LowFirst>(field);
  }
  template <class T>
  constexpr void BE16(T& field) {
    Numbers<2, RecordOrder::HighFirst>(field);
  }
  template <class T>
  constexpr void BE32(T& field) {
    Numbers<4, RecordOrder::HighFirst>(field);
  }

  template <class T, std::size_t N>
  constexpr void Bytes(T (&field)[N]) {
    if constexpr (std::is_array_v<T>) {
      for (T& row : field) Bytes(row);
    } else {
      static_assert(sizeof(T) == 1);
      self().Block(field, static_cast<int>(N), 1);
    }
  }

  template <class T, std::size_t N>
  constexpr void Text(T (&field)[N]) {
    Text(field, static_cast<int>(std::extent_v<T[N], std::rank_v<T>>));
  }
  // `width` is that of the file, at most that of the array.
  template <class T, std::size_t N>
  constexpr void Text(T (&field)[N], int width) {
    if constexpr (std::is_array_v<T>) {
      for (T& row : field) Text(row, width);
    } else {
      static_assert(std::is_same_v<T, char>);
      self().Chars(field, std::min(width, static_cast<int>(N)), static_cast<int>(N));
    }
  }

  template <class T>
  constexpr void Record(T& record) {
    if constexpr (std::is_array_v<T>) {
      for (auto& one : record) Record(one);
    } else {
      const int outer = start_;
      start_ = self().Position();
      Fields(self(), record);
      start_ = outer;
    }
  }

  constexpr void At(int offset) { self().MoveTo(start_ + offset); }

 private:
  // Tables of numbers are most of what the files hold: where this machine keeps them as the
  // file does, they are moved at once.
  template <class Element, int Width, RecordOrder Order>
  static consteval bool LiesAlike() {
    constexpr bool low = Order == RecordOrder::LowFirst && std::endian::native == std::endian::little;
    return !std::is_same_v<Element, bool> && sizeof(Element) == Width && (Width == 1 || low);
  }
  template <int Width, RecordOrder Order, class T>
  constexpr void Numbers(T& field) {
    if constexpr (std::is_array_v<T> && LiesAlike<std::remove_all_extents_t<T>, Width, Order>()) {
      self().Block(RecordFirst(field), static_cast<int>(sizeof field), Width);
    } else if constexpr (std::is_array_v<T>) {
      for (auto& one : field) Numbers<Width, Order>(one);
    } else {
      static_assert(std::is_same_v<T, bool> || sizeof(T) >= Width, "the field cannot hold the number");
      self().Number(field, Width, Order);
    }
  }
  constexpr Self& self() { return static_cast<Self&>(*this); }

  int start_ = 0;  // of the record whose fields are being told
};

// --- Bytes with an end. The one place that knows where they end.

class RecordCursor {
 public:
  constexpr explicit RecordCursor(int size) : size_(size) {}

  constexpr int Position() const { return position_; }
  // True from the first field on that did not fit.
  constexpr bool Failed() const { return failed_; }

  // Moves on by `wanted` bytes. Returns where they begin; -1, for ever after, when
  // there are fewer.
  constexpr int Take(int wanted) {
    failed_ = failed_ || wanted < 0 || wanted > size_ - position_;
    if (failed_) return -1;
    position_ += wanted;
    return position_ - wanted;
  }
  // Bytes from here to the end; 0 when one field has not fitted.
  constexpr int Left() const { return failed_ ? 0 : size_ - position_; }

 private:
  int size_;
  int position_ = 0;
  bool failed_ = false;
};

// Takes fields out of bytes. At a cut the fields before it have been taken; a number
// that is cut stays as it was, bytes and texts take what is there; what follows stays
// as it was.
class RecordReader : public RecordIo<RecordReader> {
 public:
  RecordReader(const void* from, int size) : from_(static_cast<const unsigned char*>(from)), cursor_(size) {}

  bool Failed() const { return cursor_.Failed(); }
  int Position() const { return cursor_.Position(); }
  void MoveTo(int position) { cursor_.Take(position - cursor_.Position()); }

  template <class T>
  void Number(T& field, int width, RecordOrder order) {
    const int at = cursor_.Take(width);
    if (at < 0) return;
    std::uint32_t value = 0;
    for (int i = 0; i < width; ++i) {
      value = value << 8U | from_[order == RecordOrder::HighFirst ? at + i : at + width - 1 - i];
    }
    field = static_cast<T>(value);
  }

  // False when the block is cut.
  bool Block(void* first, int size, int unit) {
    const int there = std::min(size, cursor_.Left()) / unit * unit;
    if (there > 0) std::memcpy(first, from_ + cursor_.Position(), static_cast<std::size_t>(there));
    return cursor_.Take(size) >= 0;
  }

  void Chars(char* first, int width, int room) {
    // bounded: a text of a file that has no terminator ends with its field.
    const int end = std::min(width, room - 1);
    if (Block(first, width, 1)) std::memset(first + end, 0, static_cast<std::size_t>(room - end));
  }

 private:
  const unsigned char* from_;
  RecordCursor cursor_;
};

// Puts fields into bytes; those that no field owns stay as they are. Fields that do
// not fit are not written.
class RecordWriter : public RecordIo<RecordWriter> {
 public:
  RecordWriter(void* to, int size) : to_(static_cast<unsigned char*>(to)), cursor_(size) {}

  bool Failed() const { return cursor_.Failed(); }
  int Position() const { return cursor_.Position(); }
  void MoveTo(int position) { cursor_.Take(position - cursor_.Position()); }

  template <class T>
  void Number(const T& field, int width, RecordOrder order) {
    const int at = cursor_.Take(width);
    if (at < 0) return;
    auto value = static_cast<std::uint32_t>(field);
    for (int i = 0; i < width; ++i, value >>= 8U) {
      to_[order == RecordOrder::LowFirst ? at + i : at + width - 1 - i] = static_cast<unsigned char>(value);
    }
  }

  void Block(const void* first, int size, int) {
    const int at = cursor_.Take(size);
    if (at >= 0) std::memcpy(to_ + at, first, static_cast<std::size_t>(size));
  }

  void Chars(const char* first, int width, int) { Block(first, width, 1); }

 private:
  unsigned char* to_;
  RecordCursor cursor_;
};

// --- Measuring, when the program is compiled.

// Counts the bytes up to the end, and up to a field if one is given.
class RecordMeasure : public RecordIo<RecordMeasure> {
 public:
  constexpr RecordMeasure() = default;
  constexpr explicit RecordMeasure(const void* field) : seeks_(true), field_(field) {}

  constexpr int Position() const { return position_; }
  // Of the field that was given; -1 if the record has none like it.
  constexpr int Offset() const { return offset_; }
  // Bytes that fields own.
  constexpr int Owned() const { return owned_; }

  constexpr void MoveTo(int position) {
    if (position < position_) OverlappingFields();
    position_ = position;
  }
  template <class T>
  constexpr void Number(const T& field, int width, RecordOrder) {
    Add(&field, width);
  }
  constexpr void Block(const void* first, int size, int) { Add(first, size); }
  constexpr void Chars(const char* first, int width, int) { Add(first, width); }

 private:
  // Not constexpr: a list of fields that lie in one another is no program.
  static void OverlappingFields() {}

  constexpr void Add(const void* field, int width) {
    if (seeks_ && offset_ < 0 && field == field_) offset_ = position_;
    position_ += width;
    owned_ += width;
  }

  bool seeks_ = false;
  const void* field_ = nullptr;
  int position_ = 0;
  int owned_ = 0;
  int offset_ = -1;
};

// A record to be measured. It is told about, never made.
template <class T>
struct RecordProbe {
  static T record;
};

// The bytes of a record in its file.
template <class T>
consteval int RecordSize() {
  RecordMeasure measure;
  measure.Record(RecordProbe<T>::record);
  return measure.Position();
}

// Whether every byte of the record belongs to a field.
template <class T>
consteval bool RecordIsWhole() {
  RecordMeasure measure;
  measure.Record(RecordProbe<T>::record);
  return measure.Owned() == measure.Position();
}

template <class T, class Field>
consteval int RecordOffsetOf(Field T::*member) {
  RecordMeasure measure(RecordFirst(RecordProbe<T>::record.*member));
  measure.Record(RecordProbe<T>::record);
  return measure.Offset();
}
// Where a field begins in its file: RecordOffset<&TimedRow::hour>() is 2. Of a record
// inside the record its first field has to be asked for.
template <auto Member>
consteval int RecordOffset() {
  return RecordOffsetOf(Member);
}

// --- Whole records and bytes.

// Takes a record out of `size` bytes. False when they end before it does.
template <class T>
bool RecordTake(T& record, const void* from, int size) {
  RecordReader io(from, size);
  io.Record(record);
  return !io.Failed();
}

// Puts a record into bytes that have room for it. The writer only looks at it.
template <class T>
bool RecordPut(const T& record, void* to, int size) {
  RecordWriter io(to, size);
  io.Record(const_cast<T&>(record));
  return !io.Failed();
}
