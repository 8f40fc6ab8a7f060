#include "platform/process.h"

#include <cstring>
#include <map>

#include "platform/file.h"
#include "platform/headless/state.h"
#include "platform/posix/faults.h"

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

bool Give(const std::map<std::string, std::string>& table, const std::string& key, char* buffer, int size) {
  if (size <= 0) return false;
  buffer[0] = '\0';
  const auto at = table.find(Lower(key));
  if (at == table.end() || at->second.size() >= static_cast<std::size_t>(size)) return false;
  std::memcpy(buffer, at->second.c_str(), at->second.size() + 1);
  return true;
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
  (void)folder;
  const std::string name = file;
  const std::size_t dot = name.rfind('.');
  return Give(associations, dot == std::string::npos ? "" : name.substr(dot), program, size);
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
