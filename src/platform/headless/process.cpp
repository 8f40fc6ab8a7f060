#include "platform/process.h"

#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <map>

#include "platform/file.h"
#include "platform/headless/state.h"
#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"

namespace {

// A handle's object is the place in the list of started programs.
HandleTable<ProcessTag, std::size_t> handles;
std::vector<StartedProcess> started;
std::map<std::string, std::string> associations;
std::map<std::string, std::string> classValues;

std::string Lower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

bool CopyOut(const std::string& text, char* buffer, int size) {
  if (size <= 0 || text.size() >= static_cast<std::size_t>(size)) return false;
  std::memcpy(buffer, text.c_str(), text.size() + 1);
  return true;
}

bool Give(const std::map<std::string, std::string>& table, const std::string& key, char* buffer, int size) {
  if (size <= 0) return false;
  buffer[0] = '\0';
  const auto at = table.find(Lower(key));
  return at != table.end() && CopyOut(at->second, buffer, size);
}

}  // namespace

ProcessHandle ProcessStart(const char* commandLine) {
  if (FaultMeets(FaultKind::Process)) return nullptr;
  char folder[4096];
  if (FolderGetCurrent(folder, sizeof folder) == 0) folder[0] = '\0';
  started.push_back({commandLine, folder});
  return handles.Add(std::make_shared<std::size_t>(started.size() - 1));
}

void ProcessWaitIdle(ProcessHandle process, unsigned milliseconds) {
  const auto at = handles.Find(process);
  if (at) {
    started[*at].waited += milliseconds;
  } else if (process) {
    Failure("ProcessWaitIdle: the handle is closed");
  }
}

void ProcessClose(ProcessHandle process) {
  const auto at = handles.Find(process);
  if (at) {
    started[*at].closed = true;
    handles.Remove(process);
  } else if (process) {
    Failure("ProcessClose: the handle is closed");
  }
}

bool AssociationFind(const char* file, const char* folder, char* program, int size) {
  if (size <= 0) return false;
  program[0] = '\0';
  std::string path = PosixPath(file);
  const std::string base = PosixPath(folder);
  if (!path.starts_with('/') && !base.empty()) path = base + "/" + path;
  if (access(path.c_str(), F_OK) != 0) return false;
  const std::string name = file;
  const std::size_t dot = name.rfind('.');
  const std::string extension = dot == std::string::npos ? "" : Lower(name.substr(dot));
  if (extension != ".exe") return Give(associations, extension, program, size);
  return CopyOut(PosixToProgram(std::filesystem::weakly_canonical(path).string()), program, size);
}

bool ClassValue(const char* key, char* value, int size) {
  return Give(classValues, key, value, size);
}

const std::vector<StartedProcess>& ProcessesStarted() {
  return started;
}

void AssociationSet(const char* extension, const char* program) {
  associations[Lower(extension)] = program;
}

void ClassValueSet(const char* key, const char* value) {
  classValues[Lower(key)] = value;
}

void ProcessReset() {
  handles.Clear();
  started.clear();
  associations.clear();
  classValues.clear();
}
