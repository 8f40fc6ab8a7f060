#include "platform/headless/resource_file.h"

#include <fstream>
#include <iterator>

#include "platform/posix/posix_paths.h"

// One entry of the file, all numbers little-endian, each entry at a multiple
// of 4:
//
//   offset      size
//   0           4     size of the data
//   4           4     size of the header
//   8           n     type: 0xFFFF and a 16-bit number, or a UTF-16 name
//   .           n     name: the same
//   (to 4)      4     data version
//               2     memory flags
//               2     language
//               4     version
//               4     characteristics
//   header size       the data
//
// A dialog template, plain and extended (first word 1, second 0xFFFF):
//
//   plain                          extended
//   0   4  style                   0   2  1
//   4   4  extended style          2   2  0xFFFF
//   8   2  count of controls       4   4  help number
//   10  8  x, y, width, height     8   4  extended style
//   18  n  menu, class, caption    12  4  style
//       2  point size              16  2  count of controls
//       n  face                    18  8  x, y, width, height
//                                  26  n  menu, class, caption
//                                      2  point size
//                                      2  weight, 1 italic, 1 character set
//                                      n  face
//   (the font only with style 0x40)
//
//   controls, each at a multiple of 4:
//   0   4  style                   0   4  help number
//   4   4  extended style          4   4  extended style
//   8   8  x, y, width, height     8   4  style
//   16  2  id                      12  8  x, y, width, height
//   18  n  class, text             20  4  id
//       2  size of own data        24  n  class, text
//       n  own data                    2  size of own data, n own data

namespace {

// A reader with a sticky error: past the end everything reads as 0.
class Reader {
 public:
  Reader(const unsigned char* data, std::size_t size) : data_(data), size_(size) {}

  bool Failed() const { return failed_; }
  std::size_t Left() const { return size_ - at_; }
  std::size_t At() const { return at_; }

  unsigned U8() {
    if (!Need(1)) return 0;
    return data_[at_++];
  }
  unsigned U16() {
    if (!Need(2)) return 0;
    const unsigned value = data_[at_] | (unsigned{data_[at_ + 1]} << 8U);
    at_ += 2;
    return value;
  }
  int S16() { return static_cast<std::int16_t>(U16()); }
  std::uint32_t U32() {
    const std::uint32_t low = U16();
    return low | (std::uint32_t{U16()} << 16U);
  }
  void Skip(std::size_t count) {
    if (Need(count)) at_ += count;
  }
  // The end of the data may stand in the place of the filling.
  void Align(std::size_t to) {
    while (at_ % to != 0 && at_ < size_) ++at_;
  }

  std::string TextOf(std::size_t units) {
    std::u16string text;
    for (std::size_t i = 0; i < units && !failed_; ++i) text += static_cast<char16_t>(U16());
    return FromUtf16(text);
  }
  std::string Text() {
    std::u16string text;
    for (;;) {
      const unsigned unit = U16();
      if (failed_ || unit == 0) break;
      text += static_cast<char16_t>(unit);
    }
    return FromUtf16(text);
  }
  // A number (0xFFFF in front) or a text; the number, -1 for a text.
  int NumberOrText(std::string* text) {
    text->clear();
    if (!Need(2)) return -1;
    if (data_[at_] == 0xFF && data_[at_ + 1] == 0xFF) {
      Skip(2);
      return static_cast<int>(U16());
    }
    *text = Text();
    return -1;
  }

  Reader Part(std::size_t size) {
    if (!Need(size)) return {data_, 0};
    Reader part(data_ + at_, size);
    at_ += size;
    return part;
  }

 private:
  bool Need(std::size_t count) {
    if (failed_ || count > size_ - at_) failed_ = true;
    return !failed_;
  }

  static std::string FromUtf16(const std::u16string& text) {
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
      std::uint32_t code = text[i];
      if (code >= 0xD800 && code < 0xE000) {
        const bool pair =
            code < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
        code = pair ? 0x10000U + ((code - 0xD800U) << 10U) + (text[++i] - 0xDC00U) : 0xFFFDU;
      }
      if (code < 0x80) {
        utf8 += static_cast<char>(code);
      } else if (code < 0x800) {
        utf8 += static_cast<char>(0xC0U | (code >> 6U));
        utf8 += static_cast<char>(0x80U | (code & 0x3FU));
      } else if (code < 0x10000) {
        utf8 += static_cast<char>(0xE0U | (code >> 12U));
        utf8 += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        utf8 += static_cast<char>(0x80U | (code & 0x3FU));
      } else {
        utf8 += static_cast<char>(0xF0U | (code >> 18U));
        utf8 += static_cast<char>(0x80U | ((code >> 12U) & 0x3FU));
        utf8 += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        utf8 += static_cast<char>(0x80U | (code & 0x3FU));
      }
    }
    return PosixToCp932(utf8);
  }

  const unsigned char* data_;
  std::size_t size_;
  std::size_t at_ = 0;
  bool failed_ = false;
};

constexpr std::uint32_t kStyleSetFont = 0x40;

ControlClass ClassOf(int number, const std::string& name) {
  switch (number) {
    case 0x80:
      return ControlClass::Button;
    case 0x81:
      return ControlClass::Edit;
    case 0x82:
      return ControlClass::Static;
    case 0x83:
      return ControlClass::ListBox;
    case 0x84:
      return ControlClass::ScrollBar;
    case 0x85:
      return ControlClass::ComboBox;
    default:
      break;
  }
  std::string lower;
  for (const char c : name) lower += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  if (lower == "button") return ControlClass::Button;
  if (lower == "edit") return ControlClass::Edit;
  if (lower == "static") return ControlClass::Static;
  if (lower == "listbox") return ControlClass::ListBox;
  if (lower == "scrollbar") return ControlClass::ScrollBar;
  if (lower == "combobox") return ControlClass::ComboBox;
  return ControlClass::Other;
}

void ReadPlace(Reader& in, int* x, int* y, int* width, int* height) {
  *x = in.S16();
  *y = in.S16();
  *width = in.S16();
  *height = in.S16();
}

bool ReadControl(Reader& in, bool extended, ResourceControl* control) {
  in.Align(4);
  if (extended) {
    in.Skip(4);
    control->exStyle = in.U32();
    control->style = in.U32();
  } else {
    control->style = in.U32();
    control->exStyle = in.U32();
  }
  ReadPlace(in, &control->x, &control->y, &control->width, &control->height);
  control->id = extended ? in.U32() : in.U16();
  const int number = in.NumberOrText(&control->className);
  control->controlClass = ClassOf(number, control->className);
  control->textNumber = in.NumberOrText(&control->text);
  in.Skip(in.U16());
  return !in.Failed();
}

bool ReadDialog(Reader in, ResourceDialog* dialog) {
  const std::uint32_t first = in.U32();
  dialog->extended = first == 0xFFFF0001U;
  if (dialog->extended) {
    in.Skip(4);
    dialog->exStyle = in.U32();
    dialog->style = in.U32();
  } else {
    dialog->style = first;
    dialog->exStyle = in.U32();
  }
  const unsigned count = in.U16();
  ReadPlace(in, &dialog->x, &dialog->y, &dialog->width, &dialog->height);
  std::string text;
  const int menu = in.NumberOrText(&text);
  dialog->menuId = menu > 0 ? menu : 0;
  in.NumberOrText(&text);
  dialog->caption = in.Text();
  if ((dialog->style & kStyleSetFont) != 0) {
    dialog->fontSize = static_cast<int>(in.U16());
    if (dialog->extended) {
      dialog->fontWeight = static_cast<int>(in.U16());
      dialog->fontItalic = in.U8() != 0;
      dialog->fontCharset = static_cast<int>(in.U8());
    }
    dialog->fontFace = in.Text();
  }
  for (unsigned i = 0; i < count; ++i) {
    ResourceControl control;
    if (!ReadControl(in, dialog->extended, &control)) return false;
    dialog->controls.push_back(control);
  }
  return !in.Failed();
}

constexpr int kMenuDepth = 8;

// Plain menus: 16-bit flags (0x10 popup, 0x80 last of its level), the command
// of an entry that is no popup, the text.
bool ReadMenuItems(Reader& in, int depth, std::vector<ResourceMenuItem>* items) {
  if (depth > kMenuDepth) return false;
  for (;;) {
    ResourceMenuItem item;
    const unsigned flags = in.U16();
    item.isPopup = (flags & 0x10U) != 0;
    item.grayed = (flags & 3U) != 0;
    if (!item.isPopup) item.command = in.U16();
    item.text = in.Text();
    item.separator = !item.isPopup && item.command == 0 && item.text.empty();
    if (in.Failed()) return false;
    if (item.isPopup && !ReadMenuItems(in, depth + 1, &item.items)) return false;
    items->push_back(item);
    if ((flags & 0x80U) != 0) return true;
  }
}

// Extended menus: each entry at a multiple of 4: type (0x800 separator), state,
// command, 16-bit flags (1 popup, 0x80 last), the text; a popup's help number.
bool ReadMenuExItems(Reader& in, int depth, std::vector<ResourceMenuItem>* items) {
  if (depth > kMenuDepth) return false;
  for (;;) {
    ResourceMenuItem item;
    in.Align(4);
    const std::uint32_t type = in.U32();
    const std::uint32_t state = in.U32();
    item.command = in.U32();
    const unsigned flags = in.U16();
    item.text = in.Text();
    item.isPopup = (flags & 1U) != 0;
    item.separator = (type & 0x800U) != 0;
    item.grayed = (state & 3U) != 0;
    if (item.isPopup) {
      in.Align(4);
      in.Skip(4);
      if (in.Failed() || !ReadMenuExItems(in, depth + 1, &item.items)) return false;
    }
    if (in.Failed()) return false;
    items->push_back(item);
    if ((flags & 0x80U) != 0) return true;
  }
}

bool ReadMenu(Reader in, std::vector<ResourceMenuItem>* items) {
  const unsigned version = in.U16();
  const unsigned offset = in.U16();
  if (version > 1) return false;
  in.Skip(offset);
  if (in.Failed()) return false;
  return version == 0 ? ReadMenuItems(in, 0, items) : ReadMenuExItems(in, 0, items);
}

// A bundle of 16 strings, each with its length in front; bundle n begins with
// the string number 16 (n - 1).
bool ReadStrings(Reader in, int bundle, std::map<int, std::string>* strings) {
  if (bundle < 1) return false;
  for (int i = 0; i < 16; ++i) {
    const unsigned length = in.U16();
    const std::string text = in.TextOf(length);
    if (in.Failed()) return false;
    if (length > 0) (*strings)[(bundle - 1) * 16 + i] = text;
  }
  return true;
}

bool ReadAccelerators(Reader in, std::vector<ResourceAccelerator>* accelerators) {
  if (in.Left() == 0) return true;  // a table without a key
  for (;;) {
    ResourceAccelerator entry;
    const unsigned flags = in.U16();
    entry.flags = flags & 0x7FU;
    entry.key = static_cast<int>(in.U16());
    entry.command = in.U16();
    in.Skip(2);
    if (in.Failed()) return false;
    accelerators->push_back(entry);
    if ((flags & 0x80U) != 0) return true;
  }
}

const char* ReadEntry(int type, int name, Reader data, ResourceSet* set) {
  switch (type) {
    case 4:
      return ReadMenu(data, &set->menus[name]) ? nullptr : "a broken menu";
    case 5:
      set->dialogs[name] = ResourceDialog{};
      set->dialogs[name].id = name;
      return ReadDialog(data, &set->dialogs[name]) ? nullptr : "a broken dialog template";
    case 6:
      return ReadStrings(data, name, &set->strings) ? nullptr : "a broken string table";
    case 9:
      return ReadAccelerators(data, &set->accelerators[name]) ? nullptr : "a broken accelerator table";
    default:
      ++set->others;
      return nullptr;
  }
}

}  // namespace

const char* ResourceParse(const std::string& bytes, ResourceSet* set) {
  *set = ResourceSet{};
  Reader in(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  // The empty entry that marks the 32-bit form.
  if (in.U32() != 0 || in.U32() != 32 || in.U32() != 0x0000FFFFU || in.U32() != 0x0000FFFFU) {
    return "no 32-bit resource file";
  }
  in.Skip(16);
  if (in.Failed()) return "cut inside the first entry";
  for (;;) {
    in.Align(4);
    if (in.Left() == 0) return nullptr;
    const std::size_t start = in.At();
    const std::size_t dataSize = in.U32();
    const std::size_t headerSize = in.U32();
    std::string text;
    const int type = in.NumberOrText(&text);
    const int name = in.NumberOrText(&text);
    if (in.Failed()) return "cut inside a header";
    const std::size_t used = in.At() - start;
    if (headerSize < used || headerSize - used > in.Left()) return "a header with a wrong size";
    in.Skip(headerSize - used);
    if (dataSize > in.Left()) return "cut inside an entry";
    const Reader data = in.Part(dataSize);
    if (type < 0 || name < 0) {
      ++set->others;
      continue;
    }
    if (const char* wrong = ReadEntry(type, name, data, set)) return wrong;
  }
}

const char* ResourceLoad(const std::string& path, ResourceSet* set) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    *set = ResourceSet{};
    return "cannot be opened";
  }
  const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  return ResourceParse(bytes, set);
}
