#include "platform/file.h"

#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "platform/cp932.h"
#include "platform/posix/faults.h"
#include "platform/posix/files_opened.h"
#include "platform/posix/live_counts.h"
#include "platform/posix/posix_paths.h"

namespace {

constexpr std::uint64_t kEpochDifference = 116444736000000000ULL;  // 1601 to 1970 in 100 ns

std::uint64_t FileTimeOf(const timespec& time) {
  return kEpochDifference + static_cast<std::uint64_t>(time.tv_sec) * 10000000ULL +
         static_cast<std::uint64_t>(time.tv_nsec) / 100ULL;
}

bool CopyOut(const std::string& text, char* buffer, int size) {
  if (size <= 0 || text.size() >= static_cast<std::size_t>(size)) return false;
  std::memcpy(buffer, text.c_str(), text.size() + 1);
  return true;
}

// An open search. The folder is read as the entries are asked for; a search for
// one file has no folder and is spent after its first entry.
struct Search {
  bool open = false;
  DIR* folder = nullptr;
  std::string mask;  // empty: everything
};
std::vector<Search> searches;  // by handle; places are used again

SearchHandle FreeSearch() {
  for (std::size_t i = 0; i < searches.size(); ++i) {
    if (!searches[i].open) return static_cast<SearchHandle>(i);
  }
  searches.emplace_back();
  return static_cast<SearchHandle>(searches.size() - 1);
}

bool IsAscii(const char* text) {
  while (*text > 0) ++text;
  return *text == '\0';
}

void FillName(const char* name, SearchEntry* entry) {
  std::size_t length = std::strlen(name);
  if (IsAscii(name) && length < sizeof entry->name) {
    std::memcpy(entry->name, name, length + 1);
    return;
  }
  const std::string text = PosixToCp932(name);
  length = Cp932Cut(text, sizeof entry->name - 1);
  std::memcpy(entry->name, text.c_str(), length);
  entry->name[length] = '\0';
}

// The entry `name` of the open folder `at` (AT_FDCWD: a path). False when it is
// gone. A link is what it leads to, if that is there.
bool FillEntry(int at, const char* path, const char* name, SearchEntry* entry) {
  struct stat status;
  if (fstatat(at, path, &status, 0) != 0 && fstatat(at, path, &status, AT_SYMLINK_NOFOLLOW) != 0)
    return false;
  const bool isFolder = S_ISDIR(status.st_mode);
  const std::uint64_t size = isFolder ? 0 : static_cast<std::uint64_t>(status.st_size);
  entry->attributes = isFolder ? kAttributeFolder : 0;
  entry->creationTime = FileTimeOf(status.st_ctim);
  entry->lastWriteTime = FileTimeOf(status.st_mtim);
  entry->sizeHigh = static_cast<std::uint32_t>(size >> 32U);
  entry->sizeLow = static_cast<std::uint32_t>(size);
  FillName(name, entry);
  return true;
}

// "." and ".." are folders, and nobody asks how old they are.
bool FillDots(const char* name, SearchEntry* entry) {
  if (std::strcmp(name, ".") != 0 && std::strcmp(name, "..") != 0) return false;
  *entry = SearchEntry{};
  entry->attributes = kAttributeFolder;
  FillName(name, entry);
  return true;
}

bool NextOf(const Search& search, SearchEntry* entry) {
  while (const dirent* item = readdir(search.folder)) {
    if (!search.mask.empty() && fnmatch(search.mask.c_str(), item->d_name, FNM_CASEFOLD) != 0) continue;
    if (item->d_name[0] == '.' && FillDots(item->d_name, entry)) return true;
    if (FillEntry(dirfd(search.folder), item->d_name, item->d_name, entry)) return true;
  }
  return false;
}

std::string desktopFolder;
std::vector<FileOpened> filesOpened;
std::uint64_t toldTotal = 0;
std::uint64_t toldFree = 0;

}  // namespace

void PosixDesktopSet(const std::string& folder) {
  desktopFolder = folder;
}

void PosixDiskSpaceSet(unsigned long long total, unsigned long long free) {
  toldTotal = total;
  toldFree = free;
}

const std::vector<FileOpened>& FilesOpened() {
  return filesOpened;
}

void FilesOpenedClear() {
  filesOpened.clear();
}

int FileOpen(const char* path, OpenMode mode) {
  if (FaultMeets(FaultKind::Open)) return kNoFile;
  const int flags = mode == OpenMode::ReadWrite ? O_RDWR : O_RDONLY;
  const int file = open(PosixPath(path).c_str(), flags | O_CLOEXEC);
  if (file < 0) return kNoFile;
  struct stat status {};
  if (fstat(file, &status) != 0 || S_ISDIR(status.st_mode)) {
    close(file);
    return kNoFile;
  }
  filesOpened.push_back({path, false, mode});
  ++PosixLive().files;
  return file;
}

int FileCreate(const char* path) {
  if (FaultMeets(FaultKind::Create)) return kNoFile;
  const int file = open(PosixPath(path).c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (file < 0) return kNoFile;
  filesOpened.push_back({path, true, OpenMode::ReadWrite});
  ++PosixLive().files;
  return file;
}

int FileRead(int file, void* buffer, int size) {
  if (file == kNoFile || size < 0) return -1;
  if (FaultMeets(FaultKind::Read) && size > 0) --size;
  int total = 0;
  while (total < size) {
    const ssize_t got =
        read(file, static_cast<char*>(buffer) + total, static_cast<std::size_t>(size - total));
    if (got < 0) return -1;
    if (got == 0) break;
    total += static_cast<int>(got);
  }
  return total;
}

int FileWrite(int file, const void* buffer, int size) {
  if (file == kNoFile || size < 0) return -1;
  if (FaultMeets(FaultKind::Write) && size > 0) --size;
  int total = 0;
  while (total < size) {
    const ssize_t put =
        write(file, static_cast<const char*>(buffer) + total, static_cast<std::size_t>(size - total));
    if (put <= 0) return total > 0 ? total : -1;
    total += static_cast<int>(put);
  }
  return total;
}

void FileClose(int file) {
  if (file == kNoFile) return;
  close(file);
  --PosixLive().files;
}

std::uint32_t FileSize(int file, std::uint32_t* high) {
  if (high) *high = 0;
  struct stat status {};
  if (file == kNoFile || fstat(file, &status) != 0) return 0;
  const auto size = static_cast<std::uint64_t>(status.st_size);
  if (high) *high = static_cast<std::uint32_t>(size >> 32U);
  return static_cast<std::uint32_t>(size);
}

bool FileWriteTime(int file, std::uint64_t* time) {
  if (FaultMeets(FaultKind::FileTime)) return false;
  struct stat status {};
  if (file == kNoFile || fstat(file, &status) != 0) return false;
  *time = FileTimeOf(status.st_mtim);
  return true;
}

bool FileLastWrite(const char* path, std::uint64_t* time) {
  if (FaultMeets(FaultKind::FileTime)) return false;
  struct stat status {};
  if (stat(PosixPath(path).c_str(), &status) != 0) return false;
  *time = FileTimeOf(status.st_mtim);
  return true;
}

bool FileDelete(const char* path) {
  if (FaultMeets(FaultKind::Delete)) return false;
  return unlink(PosixPath(path).c_str()) == 0;
}

bool FileMove(const char* from, const char* to) {
  if (FaultMeets(FaultKind::Move)) return false;
  const std::string target = PosixPath(to);
  if (access(target.c_str(), F_OK) == 0) return false;
  return rename(PosixPath(from).c_str(), target.c_str()) == 0;
}

bool FileCopy(const char* from, const char* to, bool failIfExists) {
  if (FaultMeets(FaultKind::Copy)) return false;
  const std::string source = PosixPath(from);
  const std::string target = PosixPath(to);
  if (failIfExists && access(target.c_str(), F_OK) == 0) return false;
  const int in = open(source.c_str(), O_RDONLY | O_CLOEXEC);
  if (in < 0) return false;
  struct stat status {};
  if (fstat(in, &status) != 0 || S_ISDIR(status.st_mode)) {
    close(in);
    return false;
  }
  const int out = open(target.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  bool good = out >= 0;
  char buffer[65536];
  while (good) {
    const ssize_t got = read(in, buffer, sizeof buffer);
    if (got == 0) break;
    good = got > 0 && write(out, buffer, static_cast<std::size_t>(got)) == got;
  }
  // A copy keeps the time of its source.
  const timespec times[2] = {status.st_atim, status.st_mtim};
  if (out >= 0) {
    futimens(out, times);
    close(out);
  }
  close(in);
  return good;
}

bool FolderCreate(const char* path) {
  if (FaultMeets(FaultKind::Folder)) return false;
  return mkdir(PosixPath(path).c_str(), 0777) == 0;
}

int FolderGetCurrent(char* buffer, int size) {
  if (FaultMeets(FaultKind::FolderGet)) return 0;
  char path[4096];
  if (!getcwd(path, sizeof path)) return 0;
  const std::string text = PosixToProgram(path);
  return CopyOut(text, buffer, size) ? static_cast<int>(text.size()) : 0;
}

bool FolderSetCurrent(const char* path) {
  if (FaultMeets(FaultKind::FolderSet) || path[0] == '\0') return false;
  return chdir(PosixPath(path).c_str()) == 0;
}

bool FolderDesktop(char* buffer, int size) {
  if (desktopFolder.empty()) return false;
  return CopyOut(PosixToProgram(desktopFolder), buffer, size);
}

SearchHandle SearchFirst(const char* pattern, SearchEntry* entry) {
  if (FaultMeets(FaultKind::SearchFirst)) return kNoSearch;
  const std::string full = PosixPath(pattern);
  const std::size_t slash = full.rfind('/');
  const char* mask = slash == std::string::npos ? full.c_str() : full.c_str() + slash + 1;
  if (mask[0] == '\0') return kNoSearch;
  Search search;
  if (std::strpbrk(mask, "*?")) {
    const std::string folder = slash == std::string::npos ? "." : full.substr(0, slash + 1);
    search.folder = opendir(folder.c_str());
    if (!search.folder) return kNoSearch;
    if (std::strcmp(mask, "*.*") != 0) search.mask = mask;
    if (!NextOf(search, entry)) {
      closedir(search.folder);
      return kNoSearch;
    }
  } else if (!FillEntry(AT_FDCWD, full.c_str(), mask, entry)) {
    return kNoSearch;
  }
  search.open = true;
  const SearchHandle handle = FreeSearch();
  searches[static_cast<std::size_t>(handle)] = std::move(search);
  ++PosixLive().searches;
  return handle;
}

bool SearchNext(SearchHandle handle, SearchEntry* entry) {
  if (FaultMeets(FaultKind::SearchNext)) return false;
  if (handle < 0 || static_cast<std::size_t>(handle) >= searches.size()) return false;
  const Search& search = searches[static_cast<std::size_t>(handle)];
  return search.folder && NextOf(search, entry);
}

void SearchClose(SearchHandle handle) {
  if (handle < 0 || static_cast<std::size_t>(handle) >= searches.size()) return;
  Search& search = searches[static_cast<std::size_t>(handle)];
  if (!search.open) return;
  if (search.folder) closedir(search.folder);
  search = Search{};
  --PosixLive().searches;
}

bool DiskSpace(const char* root, std::uint64_t* total, std::uint64_t* free) {
  struct statvfs status {};
  *total = 0;
  *free = 0;
  if (FaultMeets(FaultKind::DiskSpace)) return false;
  if (statvfs(PosixPath(root).c_str(), &status) != 0) return false;
  *total = static_cast<std::uint64_t>(status.f_blocks) * status.f_frsize;
  *free = static_cast<std::uint64_t>(status.f_bfree) * status.f_frsize;
  if (toldTotal != 0) {
    *total = toldTotal;
    *free = toldFree;
  }
  return true;
}
