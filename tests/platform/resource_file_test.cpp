// The reader of compiled resource files.
#include "platform/headless/resource_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "resources/character_ids.h"
#include "tests/support/places.h"
#include "tests/support/test_dialogs.h"

namespace {

std::string Bytes() {
  std::ifstream file(kTestResourceFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

ResourceSet Parsed() {
  ResourceSet set;
  EXPECT_EQ(ResourceParse(Bytes(), &set), nullptr);
  return set;
}

void Put16(std::string& bytes, unsigned value) {
  bytes += static_cast<char>(value & 255U);
  bytes += static_cast<char>(value >> 8U);
}

void Put32(std::string& bytes, std::uint32_t value) {
  Put16(bytes, value & 0xFFFFU);
  Put16(bytes, value >> 16U);
}

// The empty first entry.
std::string Start() {
  std::string bytes;
  for (const std::uint32_t value : {0U, 32U, 0xFFFFU, 0xFFFFU, 0U, 0U, 0U, 0U}) Put32(bytes, value);
  return bytes;
}

// A file with one entry of that type, number 1.
std::string OneEntry(unsigned type, const std::string& data) {
  std::string bytes = Start();
  Put32(bytes, static_cast<std::uint32_t>(data.size()));
  Put32(bytes, 32);
  Put16(bytes, 0xFFFF);
  Put16(bytes, type);
  Put16(bytes, 0xFFFF);
  Put16(bytes, 1);
  bytes.append(16, '\0');
  return bytes + data;
}

TEST(ResourceFileTest, ExtendedDialogHasEverythingOfItsTemplate) {
  const ResourceSet set = Parsed();
  const ResourceDialog& dialog = set.dialogs.at(IDD_TestControls);
  EXPECT_TRUE(dialog.extended);
  EXPECT_EQ(dialog.width, 200);
  EXPECT_EQ(dialog.height, 160);
  EXPECT_EQ(dialog.caption, "部品の表");
  EXPECT_EQ(dialog.fontFace, "MS Gothic");
  EXPECT_EQ(dialog.fontSize, 12);
  EXPECT_EQ(dialog.fontWeight, 400);
  EXPECT_EQ(dialog.fontCharset, 128);
  ASSERT_EQ(dialog.controls.size(), 23U);
  const ResourceControl& label = dialog.controls[0];
  EXPECT_EQ(label.controlClass, ControlClass::Static);
  EXPECT_EQ(label.text, "名前(&N)");
  EXPECT_EQ(label.id, 0xFFFFFFFF);
  const ResourceControl& edit = dialog.controls[1];
  EXPECT_EQ(edit.controlClass, ControlClass::Edit);
  EXPECT_EQ(edit.id, 10);
  EXPECT_EQ(edit.x, 50);
  EXPECT_EQ(edit.y, 4);
  EXPECT_EQ(edit.width, 80);
  EXPECT_EQ(edit.height, 12);
  EXPECT_EQ(edit.style & 0x80U, 0x80U);
  EXPECT_EQ(dialog.controls[12].controlClass, ControlClass::ListBox);
  EXPECT_EQ(dialog.controls[12].exStyle, 0x200U);
  EXPECT_EQ(dialog.controls[15].controlClass, ControlClass::ComboBox);
  EXPECT_EQ(dialog.controls[17].controlClass, ControlClass::ScrollBar);
  EXPECT_EQ(dialog.controls[22].text, "取消(&C)");
}

TEST(ResourceFileTest, PlainDialogIsRead) {
  const ResourceSet set = Parsed();
  const ResourceDialog& dialog = set.dialogs.at(IDD_TestPlain);
  EXPECT_FALSE(dialog.extended);
  EXPECT_EQ(dialog.x, 10);
  EXPECT_EQ(dialog.y, 20);
  EXPECT_EQ(dialog.fontSize, 12);
  ASSERT_EQ(dialog.controls.size(), 1U);
  EXPECT_EQ(dialog.controls[0].text, "表");
  EXPECT_EQ(dialog.controls[0].id, 1);
}

TEST(ResourceFileTest, DialogWithoutControlsIsRead) {
  EXPECT_TRUE(Parsed().dialogs.at(IDD_TestPanel).controls.empty());
}

TEST(ResourceFileTest, MenusOfBothFormsAreRead) {
  const ResourceSet set = Parsed();
  const auto& menu = set.menus.at(IDM_Test);
  ASSERT_EQ(menu.size(), 1U);
  EXPECT_TRUE(menu[0].isPopup);
  EXPECT_EQ(menu[0].text, "表");
  ASSERT_EQ(menu[0].items.size(), 4U);
  EXPECT_EQ(menu[0].items[0].command, 501U);
  EXPECT_EQ(menu[0].items[0].text, "開く(&O)");
  EXPECT_TRUE(menu[0].items[1].separator);
  EXPECT_TRUE(menu[0].items[2].grayed);
  EXPECT_EQ(menu[0].items[3].items.at(0).command, 503U);
  const auto& extended = set.menus.at(IDM_TestExtended);
  ASSERT_EQ(extended.size(), 1U);
  ASSERT_EQ(extended[0].items.size(), 3U);
  EXPECT_EQ(extended[0].items[0].command, 70000U);
  EXPECT_TRUE(extended[0].items[1].separator);
  EXPECT_EQ(extended[0].items[2].items.at(0).command, 503U);
}

TEST(ResourceFileTest, StringsAndAcceleratorsAreRead) {
  const ResourceSet set = Parsed();
  EXPECT_EQ(set.strings.size(), 1U);
  EXPECT_EQ(set.strings.at(IDS_Test), "文字列");
  const auto& keys = set.accelerators.at(IDA_Test);
  ASSERT_EQ(keys.size(), 2U);
  EXPECT_EQ(keys[0].flags, 1U | 16U);
  EXPECT_EQ(keys[0].key, 0x73);
  EXPECT_EQ(keys[0].command, 601U);
  EXPECT_EQ(keys[1].flags, 1U | 4U | 8U);
}

TEST(ResourceFileTest, ProductsOwnResourcesAreRead) {
  ResourceSet set;
  EXPECT_EQ(ResourceLoad(kResourceFile, &set), nullptr);
  EXPECT_FALSE(set.strings.empty());
  EXPECT_FALSE(set.menus.empty());
  // Nothing opens these two; they stand in the templates all the same.
  for (const int id : {IDD_OptionSelDlg1, IDD_OptionSelDlg1_1}) EXPECT_TRUE(set.dialogs.contains(id)) << id;
}

TEST(ResourceFileTest, FileThatIsNotThereOrNoResourceFileIsTold) {
  ResourceSet set;
  EXPECT_STREQ(ResourceLoad("/nonexistent/a.res", &set), "cannot be opened");
  EXPECT_STREQ(ResourceParse("", &set), "no 32-bit resource file");
  EXPECT_STREQ(ResourceParse(std::string(64, '\0'), &set), "no 32-bit resource file");
}

TEST(ResourceFileTest, EmptyFileHasNothing) {
  ResourceSet set;
  EXPECT_EQ(ResourceParse(Start(), &set), nullptr);
  EXPECT_TRUE(set.dialogs.empty());
}

TEST(ResourceFileTest, CutAtEveryByteIsToldAndHarmless) {
  const std::string bytes = Bytes();
  ResourceSet whole;
  ASSERT_EQ(ResourceParse(bytes, &whole), nullptr);
  int accepted = 0;
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    ResourceSet set;
    // A copy of its own, so that the sanitizer sees a read past the cut.
    if (ResourceParse(bytes.substr(0, length), &set) == nullptr) ++accepted;
    EXPECT_LE(set.dialogs.size(), whole.dialogs.size());
  }
  // A file that ends between two entries, or in the filling behind one, is a
  // smaller file. 10 entries with 3 bytes of filling at most.
  EXPECT_LE(accepted, 10 * 4);
}

TEST(ResourceFileTest, DialogCutAtEveryByteIsBroken) {
  const ResourceSet whole = Parsed();
  const std::string bytes = Bytes();
  // The data of the plain dialog: behind its header of 32 bytes (type 5, 101).
  std::string mark;
  Put16(mark, 0xFFFF);
  Put16(mark, 5);
  Put16(mark, 0xFFFF);
  Put16(mark, IDD_TestPlain);
  const std::size_t at = bytes.find(mark);
  ASSERT_NE(at, std::string::npos);
  const std::size_t size = static_cast<unsigned char>(bytes[at - 8]);
  const std::string data = bytes.substr(at + 24, size);
  ResourceSet set;
  ASSERT_EQ(ResourceParse(OneEntry(5, data), &set), nullptr);
  for (std::size_t length = 0; length < size; ++length) {
    EXPECT_STREQ(ResourceParse(OneEntry(5, data.substr(0, length)), &set), "a broken dialog template")
        << length;
  }
}

TEST(ResourceFileTest, AbsurdCountsAndSizesAreBroken) {
  ResourceSet set;
  // A plain dialog that tells of 65535 controls and has none.
  std::string dialog;
  Put32(dialog, 0x80000000U);
  Put32(dialog, 0);
  Put16(dialog, 0xFFFF);
  dialog.append(8 + 6, '\0');
  EXPECT_STREQ(ResourceParse(OneEntry(5, dialog), &set), "a broken dialog template");
  // A string of 65535 characters.
  std::string strings;
  Put16(strings, 0xFFFF);
  strings.append(100, 'a');
  EXPECT_STREQ(ResourceParse(OneEntry(6, strings), &set), "a broken string table");
  // A menu header that leads past the end, and a form that nobody knows.
  std::string menu;
  Put16(menu, 0);
  Put16(menu, 0xFFFF);
  EXPECT_STREQ(ResourceParse(OneEntry(4, menu), &set), "a broken menu");
  menu.clear();
  Put16(menu, 2);
  Put16(menu, 0);
  EXPECT_STREQ(ResourceParse(OneEntry(4, menu), &set), "a broken menu");
  // Popups inside popups without end.
  menu.clear();
  Put32(menu, 0);
  for (int i = 0; i < 5000; ++i) {
    Put16(menu, 0x10);
    Put16(menu, 0);
  }
  EXPECT_STREQ(ResourceParse(OneEntry(4, menu), &set), "a broken menu");
  // Accelerators without a last one.
  EXPECT_STREQ(ResourceParse(OneEntry(9, std::string(16, '\0')), &set), "a broken accelerator table");
  // Sizes past the end of the file.
  std::string bytes = OneEntry(5, dialog);
  bytes[32] = '\xFF';
  bytes[35] = '\xFF';
  EXPECT_STREQ(ResourceParse(bytes, &set), "cut inside an entry");
  bytes = OneEntry(5, dialog);
  bytes[39] = '\x7F';
  EXPECT_STREQ(ResourceParse(bytes, &set), "a header with a wrong size");
  bytes = OneEntry(5, dialog);
  bytes[36] = 4;
  EXPECT_STREQ(ResourceParse(bytes, &set), "a header with a wrong size");
}

TEST(ResourceFileTest, EntriesOfOtherKindsAndNamedOnesAreCounted) {
  ResourceSet set;
  EXPECT_EQ(ResourceParse(OneEntry(14, "abc"), &set), nullptr);
  EXPECT_EQ(set.others, 1);
}

TEST(ResourceFileTest, RandomChangesAreHarmless) {
  const std::string good = Bytes();
  std::mt19937 random(20261121);
  for (int round = 0; round < 4000; ++round) {
    std::string bytes = good;
    const unsigned changes = 1 + random() % 4;
    for (unsigned i = 0; i < changes; ++i) {
      bytes[random() % bytes.size()] = static_cast<char>(random());
    }
    if (random() % 4 == 0) bytes.resize(random() % bytes.size());
    ResourceSet set;
    ResourceParse(bytes, &set);
    EXPECT_LE(set.dialogs.size(), 10U);
  }
}

}  // namespace
