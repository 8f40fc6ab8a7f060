// The rules of the house, checked on the tree and on the compiled resources.
#include <gtest/gtest.h>

#include "resources/program_ids.h"
#include "tests/support/places.h"
#include "tests/support/resource_lint.h"
#include "tests/support/source_lint.h"
#include "tests/support/test_dialogs.h"

namespace {

ResourceSet Load(const char* path) {
  ResourceSet set;
  const char* wrong = ResourceLoad(path, &set);
  EXPECT_EQ(wrong, nullptr) << path << ": " << wrong;
  return set;
}

TEST(HouseTest, SourcesKeepTheBordersOfTheHouse) {
  const std::string findings = LintTree(SourcePath("src"));
  EXPECT_TRUE(findings.empty()) << findings;
}

TEST(HouseTest, DialogsOfTheProductAreTidy) {
  const ResourceSet set = Load(kResourceFile);
  const std::string findings = LintResources(set);
  EXPECT_TRUE(findings.empty()) << findings;
}

TEST(HouseTest, NoKeyOfTheProgramIsACommand) {
  // Alt+F4 would end the whole program from whichever of its windows has the keyboard.
  const ResourceSet set = Load(kResourceFile);
  ASSERT_TRUE(set.accelerators.contains(IDR_MAIN));
  EXPECT_TRUE(set.accelerators.at(IDR_MAIN).empty());
}

TEST(HouseTest, ATidyDialogHasNoFindings) {
  const ResourceSet set = Load(kTestResourceFile);
  EXPECT_EQ(LintDialog(set.dialogs.at(IDD_TestHouse)), std::vector<std::string>());
}

TEST(HouseTest, EveryFaultOfAnUntidyDialogIsFound) {
  const ResourceSet set = Load(kTestResourceFile);
  // Texts of this file are code page 932, findings are UTF-8: compare by parts
  // that have no Japanese in them.
  const std::vector<std::string> findings = LintDialog(set.dialogs.at(IDD_TestUntidy));
  const char* const parts[] = {
      "units, the dialog has 60",               // caption
      ": 15 columns do not fit 40 x 8 units",   // label
      ": the mnemonic A is that of static 10",  // button
      ": the id is that of static 10",          // button
      "edit 11: lies at (40, 50)-(70, 62), the dialog is 60 x 60",
      "edit 11: takes no more text than it shows",
      "list box 12: reports nothing",
      ": 4 columns do not fit 20 x 6 units",  // the low label
      "at (2, 8)-(42, 22): overlaps static 10",
  };
  ASSERT_EQ(findings.size(), std::size(parts)) << LintResources(set);
  for (std::size_t i = 0; i < findings.size(); ++i) {
    EXPECT_NE(findings[i].find(parts[i]), std::string::npos) << findings[i] << " against " << parts[i];
  }
}

ResourceControl Make(ControlClass kind, std::int64_t id, const char* text, int x, int y, int width,
                     int height) {
  ResourceControl control;
  control.controlClass = kind;
  control.id = id;
  control.text = text;
  control.style = 0x50000000;
  control.x = x;
  control.y = y;
  control.width = width;
  control.height = height;
  return control;
}

ResourceDialog MakeDialog(std::vector<ResourceControl> controls) {
  ResourceDialog dialog;
  dialog.width = 100;
  dialog.height = 100;
  dialog.fontFace = "MS Gothic";
  dialog.fontSize = 12;
  dialog.controls = std::move(controls);
  return dialog;
}

TEST(HouseTest, ButtonNeedsEightUnitsBesideItsText) {
  // Two full-width characters: 4 columns, 16 units.
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Button, 1, "終了", 0, 0, 24, 14)})).size(), 0U);
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Button, 1, "終了", 0, 0, 23, 14)})).size(), 1U);
}

TEST(HouseTest, DoubledAmpersandIsALetterAndASingleOneNone) {
  // The mark of a mnemonic takes no column; a doubled one is a letter.
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Static, 1, "a&&b&c", 0, 0, 16, 8)})).size(), 0U);
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Static, 1, "a&&b&c", 0, 0, 15, 8)})).size(), 1U);
}

TEST(HouseTest, LabelOfTwoLinesWraps) {
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Static, 1, "一二三四", 0, 0, 16, 16)})).size(), 0U);
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Static, 1, "一二三四五", 0, 0, 16, 16)})).size(), 1U);
  // A line break counts.
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Static, 1, "一\n二\n三", 0, 0, 16, 16)})).size(), 1U);
}

TEST(HouseTest, GroupBoxEnclosesButMustNotCut) {
  ResourceControl group = Make(ControlClass::Button, 0xFFFF, "", 10, 10, 50, 50);
  group.style |= 7;
  const ResourceControl inside = Make(ControlClass::ListBox, 5, "", 20, 20, 30, 30);
  const ResourceControl across = Make(ControlClass::ListBox, 5, "", 40, 20, 30, 30);
  const auto finds = [&](ResourceControl list) {
    list.style |= 1;
    return LintDialog(MakeDialog({group, list})).size();
  };
  EXPECT_EQ(finds(inside), 0U);
  EXPECT_EQ(finds(across), 1U);
}

TEST(HouseTest, ControlsWithoutAnIdMayBeManyOnlyAmongLabels) {
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Static, 0xFFFFFFFF, "", 0, 0, 8, 8),
                                   Make(ControlClass::Static, 0xFFFFFFFF, "", 10, 0, 8, 8)}))
                .size(),
            0U);
  EXPECT_EQ(LintDialog(MakeDialog({Make(ControlClass::Button, 0xFFFF, "", 0, 0, 8, 8),
                                   Make(ControlClass::Button, 0xFFFF, "", 10, 0, 8, 8)}))
                .size(),
            1U);
}

TEST(HouseTest, ClosedComboBoxIsTwelveHigh) {
  ResourceControl combo = Make(ControlClass::ComboBox, 1, "", 0, 0, 40, 90);
  combo.style |= 3;
  EXPECT_EQ(LintDialog(MakeDialog({combo, Make(ControlClass::Static, 2, "", 0, 12, 8, 8)})).size(), 0U);
  EXPECT_EQ(LintDialog(MakeDialog({combo, Make(ControlClass::Static, 2, "", 0, 11, 8, 8)})).size(), 1U);
}

TEST(HouseTest, OnlyShortFieldsMayStopAtTheirEdge) {
  const auto finds = [](int width, std::uint32_t style) {
    ResourceControl edit = Make(ControlClass::Edit, 1, "", 0, 0, width, 12);
    edit.style |= style;
    return LintDialog(MakeDialog({edit})).size();
  };
  EXPECT_EQ(finds(29, 0), 0U);
  EXPECT_EQ(finds(30, 0), 1U);
  EXPECT_EQ(finds(30, 0x80), 0U);  // scrolls
  EXPECT_EQ(finds(30, 4), 0U);     // several lines
}

TEST(HouseTest, HiddenControlsMayLieOnOthers) {
  ResourceControl below = Make(ControlClass::ListBox, 1, "", 0, 0, 20, 20);
  ResourceControl above = Make(ControlClass::ListBox, 2, "", 10, 10, 20, 20);
  below.style |= 1;
  above.style |= 1;
  EXPECT_EQ(LintDialog(MakeDialog({below, above})).size(), 1U);
  above.style &= ~0x10000000U;
  EXPECT_EQ(LintDialog(MakeDialog({below, above})).size(), 0U);
}

TEST(HouseTest, SystemHeaderOutsideTheBackendsIsFound) {
  EXPECT_EQ(LintSource("shell/a.cpp", "#include <windows.h>\n").size(), 1U);
  EXPECT_EQ(LintSource("platform/window.h", "#include <unistd.h>\n").size(), 1U);
  EXPECT_EQ(LintSource("resources/house_style.h", "#include <windows.h>\n").size(), 1U);
  EXPECT_EQ(LintSource("platform/win32/a.cpp", "#include <windows.h>\n").size(), 0U);
  EXPECT_EQ(LintSource("shell/a.cpp", "#include <cstring>\n#include \"platform/file.h\"\n").size(), 0U);
}

TEST(HouseTest, BackendHeaderOutsideTheBackendsIsFound) {
  EXPECT_EQ(LintSource("shell/a.cpp", "#include \"platform/headless/headless.h\"\n").size(), 1U);
  EXPECT_EQ(LintSource("platform/dialog.h", "#include \"platform/posix/faults.h\"\n").size(), 1U);
  EXPECT_EQ(LintSource("platform/headless/a.cpp", "#include \"platform/posix/faults.h\"\n").size(), 0U);
}

TEST(HouseTest, ForbiddenCallsAreFoundInCodeOnly) {
  EXPECT_EQ(LintSource("shell/a.cpp", "void f() { strcpy(a, b); }\n").size(), 1U);
  EXPECT_EQ(LintSource("shell/a.cpp", "x = std::sprintf (a, b);\n").size(), 1U);
  EXPECT_EQ(LintSource("platform/win32/a.cpp", "system(\"dir\");\n").size(), 1U);
  EXPECT_EQ(LintSource("shell/a.cpp", "std::snprintf(a, 3, b);\n").size(), 0U);
  EXPECT_EQ(LintSource("shell/a.cpp", "// strcpy(a, b)\n/* gets(a)\n gets(b) */\n").size(), 0U);
  EXPECT_EQ(LintSource("shell/a.cpp", "f(\"strcpy(\\\"a)\"); g('\"'); h(\"gets(\");\n").size(), 0U);
}

}  // namespace
