// The program with a scenario of a few characters in memory, and a user of its dialogs.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_tables.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "tests/support/program.h"

using Rows = std::vector<std::string>;

// The characters ミル, ホーリオ, メンティ, ツキハ, ピチュ and コロモン; none is registered. The
// main folder is "C:\work", which is there and empty but for "\背景".
class ScenarioWorldTest : public ProgramTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Registers a character, from 1, under that name.
  static void Register(int chara, const std::string& castName);
  // A parameter in that slot.
  static void Parameter(int slot, const std::string& name);
  // The scene's cast list.
  static void Cast(const std::vector<int>& ids);
  static std::vector<int> CastIds();
  // A picture of a character's first frame, with its mask if that is wanted.
  static void Picture(int chara, int width, int height, bool mask = true);

  // --- The user
  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenChoose(int id, int row) {
    Then([id, row] { ChooseRow(TopDialog(), id, row); });
  }
  static void ThenType(int id, const std::string& text) {
    Then([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  static Rows RowsIn(int id) { return ListRows(TopDialog(), id); }
  static std::string TextIn(int id) { return ControlText(TopDialog(), id); }
};
