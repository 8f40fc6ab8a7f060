// The filters of the file picker, and the extension that they give on save.
#include "services/file_picker.h"
#include "tests/services/picker_fixture.h"

namespace {

// --- Filters

TEST_F(FilePickerTest, TheFilterListHasSixteenRows) {
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), kPickFilterId),
              (Rows{"*.*", "*.C", "*.CPP", "*.H", "*.INC", "*.RC", "*.C *.CPP *.H *.INC *RC", "*.DOC",
                    "*.TXT", "*.XCL", "*.BMP", "*.JPG", "*.WAV", "*.MP3", "*.INI", "*.BAT"}));
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 0);
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, EachFilterRowListsItsOwnFiles) {
  const char* const extensions[16] = {"",    "c",   "CPP", "h",   "inc", "rc",  "",    "doc",
                                      "txt", "xcl", "bmp", "jpg", "wav", "mp3", "ini", "bat"};
  MakeFolder("C:\\kinds");
  Rows all;
  for (const char* extension : extensions) {
    if (*extension == '\0') continue;
    all.push_back(std::string("f.") + extension);
    PutFile("C:\\kinds\\" + all.back(), "");
  }
  std::sort(all.begin(), all.end());
  GoTo("C:\\kinds");
  Then([=] {
    for (int row = 15; row >= 0; --row) {
      ChooseRow(TopDialog(), kPickFilterId, row);
      EXPECT_EQ(Picker.PickFilterSel, row);
      const Rows wanted = row == 0   ? all
                          : row == 6 ? Rows{"f.CPP", "f.c", "f.h", "f.inc", "f.rc"}
                                     : Rows{std::string("f.") + extensions[row]};
      EXPECT_EQ(Files(), wanted) << row;
    }
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, ACallersFilterThatIsAFixedRowSelectsIt) {
  Then([] {
    EXPECT_EQ(Picker.PickFilterSel, 10);
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 10);
    EXPECT_EQ(ListCount(TopDialog(), kPickFilterId), 16);
    EXPECT_EQ(Files(), Rows{"b.bmp"});
    PressCancel();
  });
  EXPECT_EQ(Load("*.BMP"), 0);
}

TEST_F(FilePickerTest, ACallersOwnFilterBecomesTheSeventeenthRow) {
  Then([] {
    EXPECT_EQ(ListCount(TopDialog(), kPickFilterId), 17);
    EXPECT_EQ(ListRows(TopDialog(), kPickFilterId).back(), "*.BUP");
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 16);
    EXPECT_EQ(Files(), Rows{"g.bup"});
    ChooseRow(TopDialog(), kPickFilterId, 0);
    EXPECT_EQ(Files().size(), 7U);
    ChooseRow(TopDialog(), kPickFilterId, 16);
    EXPECT_EQ(Files(), Rows{"g.bup"});
    PressCancel();
  });
  EXPECT_EQ(Load("*.BUP"), 0);
}

TEST_F(FilePickerTest, TheFilterIsBackAfterACall) {
  Picker.PickFilterSel = 8;
  Then([] {
    EXPECT_EQ(Files(), Rows{"a.txt"});
    ChooseRow(TopDialog(), kPickFilterId, 2);
    PressCancel();
  });
  EXPECT_EQ(Load(""), 0);
  EXPECT_EQ(Picker.PickFilterSel, 8);
  Then(PressCancel);
  EXPECT_EQ(Load("*.BUP"), 0);
  EXPECT_EQ(Picker.PickFilterSel, 8);
  Picker.PickFilterSel = 0;
}

TEST_F(FilePickerTest, AFilterRowThatIsNotThereReadsAsAll) {
  Picker.PickFilterSel = 16;
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 0);
    EXPECT_EQ(Files().size(), 7U);
    PressCancel();
  });
  EXPECT_EQ(Load(""), 0);
  Picker.PickFilterSel = 0;
}

TEST_F(FilePickerTest, AnOverlongFilterIsCut) {
  const std::string filter = "*." + std::string(60, 'Q');
  Then([=] {
    EXPECT_EQ(ListRows(TopDialog(), kPickFilterId).back(), filter.substr(0, 31));
    PressCancel();
  });
  EXPECT_EQ(Load(filter.c_str()), 0);
}

// --- Saving

TEST_F(FilePickerTest, ANameWithoutAFullStopGetsTheFiltersExtensionOnSave) {
  EXPECT_EQ(SaveAs("plan", "*.BUP"), "C:\\start\\plan.BUP");
}

TEST_F(FilePickerTest, AFilterOfEverythingGivesNoExtensionOnSave) {
  EXPECT_EQ(SaveAs("plan", "*.*"), "C:\\start\\plan");
  EXPECT_EQ(SaveAs("plan", ""), "C:\\start\\plan");
}

TEST_F(FilePickerTest, ANameWithAFullStopKeepsItAndTheFiltersExtensionIsNotAdded) {
  EXPECT_EQ(SaveAs("plan.old", "*.BUP"), "C:\\start\\plan.old");
  EXPECT_EQ(SaveAs("plan.", "*.BUP"), "C:\\start\\plan.");
}

TEST_F(FilePickerTest, AFullStopInTheFolderIsNoExtension) {
  MakeFolder("C:\\my.data");
  GoTo("C:\\my.data");
  EXPECT_EQ(SaveAs("plan", "*.BUP"), "C:\\my.data\\plan.BUP");
}

TEST_F(FilePickerTest, AFilterThatIsNoExtensionGivesNone) {
  EXPECT_EQ(SaveAs("plan", "*BUP"), "C:\\start\\plan");
  EXPECT_EQ(SaveAs("plan", "*"), "C:\\start\\plan");
}

TEST_F(FilePickerTest, LoadingAddsNoExtension) {
  Then([] { TypeName("plan"); });
  Then(PressOk);
  EXPECT_EQ(Load("*.BUP"), 1);
  EXPECT_STREQ(path, "C:\\start\\plan");
}

TEST_F(FilePickerTest, ADoubleByteNameWith5CKeepsItsBytesOnSave) {
  EXPECT_EQ(SaveAs("\x95\x5C", "*.BUP"), "C:\\start\\\x95\x5C.BUP");
}

}  // namespace
