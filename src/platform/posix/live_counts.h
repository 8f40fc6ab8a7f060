// The counters behind DiagnosticsLive in the native build.
#pragma once

#include "platform/diagnostics.h"

LiveObjects& PosixLive();
