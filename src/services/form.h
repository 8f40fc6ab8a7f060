// What a dialog shows of a record, and takes back: one list of its fields, run both ways.
//
//   void Exchange(Form& form, SnryTitle& title) {
//     form.Check(IDC_TITLE_SHOW, title.shown);
//     form.Text(IDC_TITLE_TEXT, title.text, 127);
//     form.Choice(IDC_TITLE_SIZE, title.size, RowsOf(kTitleSizes));
//     form.Number(IDC_TITLE_VALUE, title.end.value, 3);
//   }
//   FormShow(dialog, title, Exchange);
//   FormTake(dialog, title, Exchange);
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/types.h"
#include "services/rows.h"

class Form {
 public:
  enum class Way { Show, Take };
  Form(WindowHandle dialog, Way way) : dialog_(dialog), way_(way) {}

  // For what a list of fields does one way only.
  WindowHandle Dialog() const { return dialog_; }
  bool Takes() const { return way_ == Way::Take; }

  // A check box: 1 or 0; any other number shows as checked.
  template <class T>
  void Check(int id, T& field) {
    const bool on = CheckValue(id, field != 0);
    if (Takes()) field = static_cast<T>(on ? 1 : 0);
  }

  // A check box for one bit of a field.
  template <class T>
  void Bit(int id, T& field, T bit) {
    const bool on = CheckValue(id, (field & bit) != 0);
    if (Takes()) field = static_cast<T>(on ? field | bit : field & ~bit);
  }

  // An edit field. At most `most` bytes are taken, whatever was typed; the cut may fall
  // inside a double-byte pair. A record's text needs no terminator when it fills its
  // field; bytes behind a terminator stay as they are.
  template <std::size_t N>
  void Text(int id, char (&field)[N], int most = static_cast<int>(N) - 1) {
    TextValue(id, field, static_cast<int>(N), most);
  }

  // A combo box or list with these rows: the number of the chosen row. A number beyond
  // the rows shows none of them, and while none is chosen the field stays as it is.
  template <class T>
  void Choice(int id, T& field, const Rows& rows) {
    const int row = ChoiceValue(id, static_cast<int>(field), rows);
    if (Takes() && row >= 0) field = static_cast<T>(row);
  }

  // Radio buttons: the place of the checked one in `ids`; none checked: as it is.
  template <class T, std::size_t N>
  void Radio(const int (&ids)[N], T& field) {
    const int place = RadioValue(ids, static_cast<int>(N), static_cast<int>(field));
    if (Takes() && place >= 0) field = static_cast<T>(place);
  }

  // An edit field with a number of at most `digits` characters, its sign among them, read
  // by the rule of DecimalParse and cut to the width of its field. What stands there as the
  // field's own number is shown is that number, however long.
  template <class T>
  void Number(int id, T& field, int digits, const char* format = "%d") {
    const std::int32_t value = NumberValue(id, static_cast<std::int32_t>(field), digits, format);
    if (Takes()) field = static_cast<T>(value);
  }

  // The same, held between two bounds.
  template <class T>
  void NumberIn(int id, T& field, int digits, std::int32_t lowest, std::int32_t highest,
                const char* format = "%d") {
    std::int32_t value = NumberValue(id, static_cast<std::int32_t>(field), digits, format);
    if (value < lowest) value = lowest;
    if (value > highest) value = highest;
    if (Takes()) field = static_cast<T>(value);
  }

 private:
  // Each shows `value`, or reads what stands there.
  bool CheckValue(int id, bool value);
  void TextValue(int id, char* field, int size, int most);
  int ChoiceValue(int id, int value, const Rows& rows);
  int RadioValue(const int* ids, int count, int value);
  std::int32_t NumberValue(int id, std::int32_t value, int digits, const char* format);

  WindowHandle dialog_;
  Way way_;
};

// Shows a record in a dialog; takes it back from there.
template <class Record>
void FormShow(WindowHandle dialog, Record& record, void (*exchange)(Form&, Record&)) {
  Form form(dialog, Form::Way::Show);
  exchange(form, record);
}
template <class Record>
void FormTake(WindowHandle dialog, Record& record, void (*exchange)(Form&, Record&)) {
  Form form(dialog, Form::Way::Take);
  exchange(form, record);
}
