// The backend itself where text crosses into it: what does not fit is no text at all.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "platform/file.h"
#include "platform/process.h"
#include "tests/desktop/companion.h"

namespace {

constexpr int kValueSize = 600;
constexpr char kKey[] = "mirrelltest.value";
constexpr wchar_t kWideKey[] = L"mirrelltest.value";

class ClassValueTest : public testing::Test {
 protected:
  void TearDown() override { RegDeleteTreeW(HKEY_CLASSES_ROOT, kWideKey); }

  // Stores a value and reads it. `terminated` false: without a terminator.
  bool Read(const std::wstring& value, bool terminated = true) {
    HKEY key = nullptr;
    if (RegCreateKeyW(HKEY_CLASSES_ROOT, kWideKey, &key) != ERROR_SUCCESS) return false;
    const DWORD bytes = static_cast<DWORD>((value.size() + (terminated ? 1 : 0)) * sizeof(wchar_t));
    RegSetValueExW(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), bytes);
    RegCloseKey(key);
    std::memset(text_, '!', sizeof text_);
    return ClassValue(kKey, text_, kValueSize);
  }

  char text_[kValueSize + 1] = "";
};

TEST_F(ClassValueTest, AValueOfSixHundredBytesWithItsTerminatorIsWhole) {
  EXPECT_TRUE(Read(std::wstring(599, L'a')));
  EXPECT_EQ(std::string(text_), std::string(599, 'a'));
  // Each of these takes two bytes: 0x88 0x9F.
  EXPECT_TRUE(Read(std::wstring(299, L'\x4E9C') + L"z"));
  std::string pairs;
  for (int i = 0; i < 299; ++i) pairs += "\x88\x9F";
  EXPECT_EQ(std::string(text_), pairs + "z");
  EXPECT_EQ(text_[kValueSize], '!');
}

TEST_F(ClassValueTest, ALongerValueFailsAndIsCutNowhere) {
  EXPECT_FALSE(Read(std::wstring(600, L'a')));
  EXPECT_FALSE(Read(std::wstring(601, L'a')));
  EXPECT_FALSE(Read(std::wstring(5000, L'a')));
  EXPECT_FALSE(Read(std::wstring(300, L'\x4E9C')));
  EXPECT_FALSE(Read(L"z" + std::wstring(300, L'\x4E9C')));
  EXPECT_FALSE(Read(std::wstring(600, L'a'), false));
  EXPECT_EQ(text_[0], '!');
}

TEST_F(ClassValueTest, AValueWithoutATerminatorEndsAllTheSame) {
  EXPECT_TRUE(Read(std::wstring(599, L'a'), false));
  EXPECT_EQ(std::string(text_), std::string(599, 'a'));
  EXPECT_TRUE(Read(L"", true));
  EXPECT_STREQ(text_, "");
}

TEST(FolderBorderTest, AFolderThatDoesNotFitIsAFailureAndNoOtherFolder) {
  char text[1024];
  const int length = FolderGetCurrent(text, sizeof text);
  ASSERT_GT(length, 1);
  EXPECT_EQ(std::strlen(text), static_cast<std::size_t>(length));
  EXPECT_EQ(FolderGetCurrent(text, length + 1), length);
  EXPECT_EQ(FolderGetCurrent(text, length), 0);
  EXPECT_EQ(FolderGetCurrent(text, 0), 0);
  ASSERT_TRUE(FolderDesktop(text, sizeof text));
  const int desktop = static_cast<int>(std::strlen(text));
  EXPECT_TRUE(FolderDesktop(text, desktop + 1));
  EXPECT_FALSE(FolderDesktop(text, desktop));
  EXPECT_FALSE(FolderDesktop(text, 1));
}

// A folder whose name code page 932 cannot hold.
class ForeignFolderTest : public testing::Test {
 protected:
  void SetUp() override {
    GetCurrentDirectoryW(MAX_PATH, before_);
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    folder_ = std::wstring(temp) + L"J\x00F6rg" + std::to_wstring(GetCurrentProcessId());
    ASSERT_TRUE(CreateDirectoryW(folder_.c_str(), nullptr));
    ASSERT_TRUE(SetCurrentDirectoryW(folder_.c_str()));
  }
  void TearDown() override {
    SetCurrentDirectoryW(before_);
    DeleteFileW((folder_ + L"\\a.bin").c_str());
    RemoveDirectoryW(folder_.c_str());
  }

  wchar_t before_[MAX_PATH] = L"";
  std::wstring folder_;
};

TEST_F(ForeignFolderTest, ItIsEnteredByItsShortNameOrNotAtAll) {
  char name[MAX_PATH];
  const int length = FolderGetCurrent(name, sizeof name);
  wchar_t shortName[MAX_PATH];
  GetShortPathNameW(folder_.c_str(), shortName, MAX_PATH);
  const bool hasShort = std::wstring(shortName).find(L'\x00F6') == std::wstring::npos;
  EXPECT_EQ(length > 0, hasShort);
  if (length == 0) return;
  ASSERT_TRUE(FolderSetCurrent("C:\\"));
  ASSERT_TRUE(FolderSetCurrent(name));
  FileClose(FileCreate("a.bin"));
  EXPECT_NE(GetFileAttributesW((folder_ + L"\\a.bin").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST(BorderTest, ANumberOfMoreThanThirtyTwoBitsIsNoCommand) {
  Companion companion;
  companion.Start();
  ASSERT_FALSE(HasFatalFailure());
  // Cut to 32 bits this would be 8, which ends the program.
  SendMessageW(companion.Window(), WM_COMMAND, 0x100000008, 0);
  companion.Tick();
  EXPECT_TRUE(companion.Runs());
}

// Whether the bytes of a program hold a text.
bool Holds(const std::wstring& program, const std::wstring& text) {
  const std::vector<unsigned char> bytes = ReadWholeFile(program);
  const auto* wanted = reinterpret_cast<const unsigned char*>(text.data());
  return std::search(bytes.begin(), bytes.end(), wanted, wanted + text.size() * sizeof text[0]) !=
         bytes.end();
}

TEST(BorderTest, TheShippedProgramAnswersNoTest) {
  const Companion companion;
  for (const wchar_t* text : {L"MirrellDiagnostics", L"MIRRELL_LIVE_REPORT"}) {
    EXPECT_FALSE(Holds(companion.File(L"shipped.exe"), text));
    EXPECT_TRUE(Holds(companion.File(L"mirrell.exe"), text));
  }
  EXPECT_TRUE(Holds(companion.File(L"shipped.exe"), L"MS Gothic"));  // what is there is found
}

}  // namespace
