// Faults by counting: a test lets the n-th call of a kind fail, n rising until
// a run goes through without meeting it.
#pragma once

#include <functional>

enum class FaultKind {
  Open,    // FileOpen gives kNoFile
  Create,  // FileCreate gives kNoFile
  Read,    // FileRead comes one byte short of what it would give
  Write,   // FileWrite writes one byte less than asked
  Delete,
  Move,
  Copy,
  Folder,       // FolderCreate
  FolderGet,    // FolderGetCurrent
  FolderSet,    // FolderSetCurrent
  SearchFirst,  // nothing matches
  SearchNext,   // the search is spent
  DiskSpace,
  FileTime,  // FileWriteTime, FileLastWrite
  Memory,    // MemoryAllocate gives null
  Bitmap,    // CanvasMemory gives null
  Region,    // a region cannot be made
  Window,    // a window or dialog cannot be made
  Timer,     // TimerStart
  Process,   // ProcessStart
  Socket,    // each step of the network in turn: start, host, socket, connect, send, receive
  Count
};

// Lets the `nth` call (from 1) of that kind fail, counted from now on.
void FaultArm(FaultKind kind, int nth);

// Lets every call of that kind from the `nth` on fail.
void FaultArmFrom(FaultKind kind, int nth);

// Runs `act` at the `nth` call (from 1) of that kind, which does not fail: what another
// process does meanwhile.
void FaultMeanwhile(FaultKind kind, int nth, std::function<void()> act);

// Takes every fault back and sets the counts to 0.
void FaultClear();

// How many calls of a kind were made since the last FaultClear or FaultArm.
int FaultCalls(FaultKind kind);

// True if an armed fault has been met.
bool FaultWasMet();

// Asked by the backend at each call: true when this one is to fail.
bool FaultMeets(FaultKind kind);
