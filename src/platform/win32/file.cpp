#include <windows.h>

#include "platform/file.h"

#include <shlobj.h>

#include <cstring>
#include <vector>

#include "platform/win32/border.h"
#include "platform/win32/late.h"

namespace {

// Kernel handles fit into 32 bits, so a file's number is its handle.
HANDLE HandleOf(int file) {
  return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(file));
}

int NumberOf(HANDLE handle) {
  if (handle == INVALID_HANDLE_VALUE) return kNoFile;
  ++Live().files;
  return static_cast<int>(reinterpret_cast<INT_PTR>(handle));
}

std::uint64_t TimeOf(const FILETIME& time) {
  return (std::uint64_t{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
}

// Search handles are addresses; they live in a table of their own.
std::vector<HANDLE> searches;

bool FillEntry(const WIN32_FIND_DATAW& data, SearchEntry* entry) {
  entry->attributes = data.dwFileAttributes;
  entry->creationTime = TimeOf(data.ftCreationTime);
  entry->lastWriteTime = TimeOf(data.ftLastWriteTime);
  entry->sizeHigh = data.nFileSizeHigh;
  entry->sizeLow = data.nFileSizeLow;
  CopyNarrow(data.cFileName, entry->name, sizeof entry->name);
  return true;
}

}  // namespace

int FileOpen(const char* path, OpenMode mode) {
  const DWORD access = mode == OpenMode::ReadWrite ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
  const DWORD sharing =
      mode == OpenMode::ReadDenyWrite ? FILE_SHARE_READ : FILE_SHARE_READ | FILE_SHARE_WRITE;
  return NumberOf(CreateFileW(Wide(path).c_str(), access, sharing, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

int FileCreate(const char* path) {
  return NumberOf(CreateFileW(Wide(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

int FileRead(int file, void* buffer, int size) {
  DWORD got = 0;
  if (file == kNoFile || size < 0) return -1;
  return ReadFile(HandleOf(file), buffer, static_cast<DWORD>(size), &got, nullptr) ? static_cast<int>(got)
                                                                                   : -1;
}

int FileWrite(int file, const void* buffer, int size) {
  DWORD put = 0;
  if (file == kNoFile || size < 0) return -1;
  return WriteFile(HandleOf(file), buffer, static_cast<DWORD>(size), &put, nullptr) ? static_cast<int>(put)
                                                                                    : -1;
}

void FileClose(int file) {
  if (file == kNoFile) return;
  CloseHandle(HandleOf(file));
  --Live().files;
}

std::uint32_t FileSize(int file, std::uint32_t* high) {
  if (high) *high = 0;
  LARGE_INTEGER size{};
  if (file == kNoFile || !GetFileSizeEx(HandleOf(file), &size)) return 0;
  if (high) *high = static_cast<std::uint32_t>(size.HighPart);
  return size.LowPart;
}

bool FileWriteTime(int file, std::uint64_t* time) {
  FILETIME written{};
  if (file == kNoFile || !GetFileTime(HandleOf(file), nullptr, nullptr, &written)) return false;
  *time = TimeOf(written);
  return true;
}

bool FileLastWrite(const char* path, std::uint64_t* time) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExW(Wide(path).c_str(), GetFileExInfoStandard, &data)) return false;
  *time = TimeOf(data.ftLastWriteTime);
  return true;
}

bool FileDelete(const char* path) {
  return DeleteFileW(Wide(path).c_str()) != FALSE;
}

bool FileMove(const char* from, const char* to) {
  return MoveFileW(Wide(from).c_str(), Wide(to).c_str()) != FALSE;
}

bool FileCopy(const char* from, const char* to, bool failIfExists) {
  return CopyFileW(Wide(from).c_str(), Wide(to).c_str(), failIfExists ? TRUE : FALSE) != FALSE;
}

bool FolderCreate(const char* path) {
  return CreateDirectoryW(Wide(path).c_str(), nullptr) != FALSE;
}

int FolderGetCurrent(char* buffer, int size) {
  wchar_t path[MAX_PATH];
  // For a longer one the call tells the room it would need and writes nothing.
  const DWORD length = GetCurrentDirectoryW(MAX_PATH, path);
  if (length == 0 || length >= MAX_PATH || !CopyNarrowPath(path, buffer, size)) return 0;
  return static_cast<int>(std::strlen(buffer));
}

bool FolderSetCurrent(const char* path) {
  return path[0] != '\0' && SetCurrentDirectoryW(Wide(path).c_str()) != FALSE;
}

bool FolderDesktop(char* buffer, int size) {
  auto* locate = LATE("shell32.dll", SHGetSpecialFolderLocation);
  auto* pathOf = LATE("shell32.dll", SHGetPathFromIDListW);
  auto* release = LATE("ole32.dll", CoTaskMemFree);
  LPITEMIDLIST list = nullptr;
  if (!locate || !pathOf || !release || FAILED(locate(nullptr, CSIDL_DESKTOPDIRECTORY, &list))) return false;
  wchar_t path[MAX_PATH];
  const bool good = pathOf(list, path) != FALSE;
  release(list);
  return good && CopyNarrowPath(path, buffer, size);
}

SearchHandle SearchFirst(const char* pattern, SearchEntry* entry) {
  WIN32_FIND_DATAW data{};
  HANDLE handle = FindFirstFileExW(Wide(pattern).c_str(), FindExInfoBasic, &data, FindExSearchNameMatch,
                                   nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (handle == INVALID_HANDLE_VALUE) return kNoSearch;
  FillEntry(data, entry);
  ++Live().searches;
  for (std::size_t i = 0; i < searches.size(); ++i) {
    if (searches[i]) continue;
    searches[i] = handle;
    return static_cast<SearchHandle>(i);
  }
  searches.push_back(handle);
  return static_cast<SearchHandle>(searches.size() - 1);
}

bool SearchNext(SearchHandle search, SearchEntry* entry) {
  const auto at = static_cast<std::size_t>(search);
  WIN32_FIND_DATAW data{};
  return search != kNoSearch && at < searches.size() && searches[at] && FindNextFileW(searches[at], &data) &&
         FillEntry(data, entry);
}

void SearchClose(SearchHandle search) {
  const auto at = static_cast<std::size_t>(search);
  if (search == kNoSearch || at >= searches.size() || !searches[at]) return;
  FindClose(searches[at]);
  searches[at] = nullptr;
  --Live().searches;
}

bool DiskSpace(const char* root, std::uint64_t* total, std::uint64_t* free) {
  ULARGE_INTEGER available{};
  ULARGE_INTEGER all{};
  ULARGE_INTEGER unused{};
  *total = 0;
  *free = 0;
  if (!GetDiskFreeSpaceExW(Wide(root).c_str(), &available, &all, &unused)) return false;
  *total = all.QuadPart;
  *free = unused.QuadPart;
  return true;
}
