// Writers of data files under attack.
#pragma once

// Runs a writer with its first write failing, then with its second, and so on until
// a run meets no failure and gives 0. Each failing run has to give `result`, with
// FileStatus -2. Returns how many writes there were to fail.
int FailingWrites(int (*writer)(), int result);
