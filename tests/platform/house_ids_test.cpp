// Each number of a control that a dialog's file uses stands in one of its templates.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "platform/headless/resource_file.h"
#include "resources/filetools_ids.h"
#include "tests/support/house_rules.h"
#include "tests/support/places.h"

namespace {

using Numbers = std::map<std::string, int>;

// The numbers of IDD_ and IDC_ names in the headers of the resources.
Numbers NumbersOf(const SourceTree& tree) {
  static const std::regex kDefine("#define (ID[DC]_\\w+) (\\d+)");
  Numbers numbers;
  for (const auto& [path, text] : tree) {
    if (!path.starts_with("resources/")) continue;
    for (std::sregex_iterator it(text.begin(), text.end(), kDefine), end; it != end; ++it) {
      numbers[(*it)[1]] = std::stoi((*it)[2]);
    }
  }
  return numbers;
}

std::set<std::string> Words(const std::string& code, const char* prefix) {
  const std::regex kWord(std::string("\\b") + prefix + "\\w+");
  std::set<std::string> words;
  for (std::sregex_iterator it(code.begin(), code.end(), kWord), end; it != end; ++it)
    words.insert(it->str());
  return words;
}

std::set<int> ControlsOf(const ResourceSet& set, const std::set<std::string>& dialogs,
                         const Numbers& numbers) {
  std::set<int> controls;
  for (const std::string& dialog : dialogs) {
    const auto found = set.dialogs.find(numbers.at(dialog));
    if (found == set.dialogs.end()) continue;
    for (const ResourceControl& control : found->second.controls)
      controls.insert(static_cast<int>(control.id));
  }
  return controls;
}

// True for a control that the file makes itself at run time.
bool IsMade(const std::string& code, const std::string& id) {
  return std::regex_search(code, std::regex("\\bControlCreate\\([^;]*\\b" + id + "\\b"));
}

std::string LintIds(const SourceTree& tree, const ResourceSet& set) {
  const Numbers numbers = NumbersOf(tree);
  std::string findings;
  for (const auto& [path, text] : tree) {
    if (!path.ends_with(".cpp")) continue;
    const std::string code = SourceCodeOnly(text);
    const std::set<std::string> dialogs = Words(code, "IDD_");
    if (dialogs.empty()) continue;
    const std::set<int> controls = ControlsOf(set, dialogs, numbers);
    for (const std::string& id : Words(code, "IDC_")) {
      const auto number = numbers.find(id);
      if (number == numbers.end()) {
        findings += path + ": " + id + " has no number\n";
      } else if (!controls.contains(number->second) && !IsMade(code, id)) {
        findings += path + ": " + id + " stands in none of its templates\n";
      }
    }
  }
  return findings;
}

ResourceSet Resources() {
  ResourceSet set;
  EXPECT_EQ(ResourceLoad(kResourceFile, &set), nullptr);
  return set;
}

TEST(HouseIdsTest, EveryControlOfADialogsFileStandsInItsTemplate) {
  EXPECT_EQ(LintIds(SourceTreeRead(SourcePath("src")), Resources()), "");
}

TEST(HouseIdsTest, AControlOfAnotherTemplateIsFound) {
  const SourceTree tree = {
      {"resources/a_ids.h",
       "#define IDD_FileOpnDialog 3500\n#define IDC_OPN_FILE 101\n#define IDC_NOWHERE 31999\n"},
      {"filetools/a.cpp", "int a = IDD_FileOpnDialog + IDC_OPN_FILE + IDC_NOWHERE + IDC_UNKNOWN;\n"},
      {"filetools/b.cpp",
       "auto a = IDD_FileOpnDialog;\nauto b = ControlCreate(dialog, kind, IDC_NOWHERE, place);\n"},
      {"filetools/helper.cpp", "int b = IDC_NOWHERE;\n"}};
  EXPECT_EQ(LintIds(tree, Resources()),
            "filetools/a.cpp: IDC_NOWHERE stands in none of its templates\n"
            "filetools/a.cpp: IDC_UNKNOWN has no number\n");
}

}  // namespace
