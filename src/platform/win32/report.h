// What a build lays open to the tests that drive it from outside. The program is linked
// with report_none.cpp, which lays nothing open; the build that the tests start with
// report.cpp.
#pragma once

#include <windows.h>

// Answers a message to the main window that asks for a number of diagnostics.h. False if
// this is no such message.
bool ReportAnswers(UINT message, WPARAM number, LRESULT* answer);

// The message loop has ended: what is still held is told.
void ReportEnd();
