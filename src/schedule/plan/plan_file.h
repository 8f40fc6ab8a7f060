// Plan files, "Plan Files (*.GPP)", numbers of the head big-endian:
//
//   0       16        magic "SCP Data File : "
//   16     574        ScpPlanHead
//   590    152 each   ScpPlanRec, as many as the head counts
#pragma once

inline constexpr char kScpMask[] = "*.GPP";

// Writes the plan. Returns FileStatus: 0, and the plan is not changed any more; -1 cannot
// be created; -2 short write: the file stays as far as it got.
int ScpSaveFile(const char* path);

// Reads a plan straight into the state. Returns FileStatus: 0, and the plan is not
// changed; -1 cannot be opened; -2 wrong magic, too many lines or short: what was read
// stays then.
int ScpLoadFile(const char* path);
