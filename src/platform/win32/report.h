// What a build lays open to the tests that drive it from outside. The platform
// library has report_none.cpp, which lays nothing open; the build that the tests start is
// linked with report.cpp before it.
#pragma once

#include <windows.h>

// Answers a message to the main window that asks for a number of diagnostics.h. False if
// this is no such message.
bool ReportAnswers(UINT message, WPARAM number, LRESULT* answer);

// The time of the build that the tests start goes its own way once a test has set it;
// the machine's clock is never touched.
void ReportTimeShift(SYSTEMTIME* now);
// True when it has taken a time that the program sets over.
bool ReportTimeTake(const SYSTEMTIME& wanted);

// The message loop has ended: what is still held is told.
void ReportEnd();
