// The comments of alarms and timed events, as fields of a form.
#pragma once

#include <cstddef>

#include "services/form.h"

// Shows a comment of `size` bytes in an edit field, or takes it from there.
// settled: a comment of an alarm or event that is too long is cut before the double-byte pair that does not
// fit.
void CommentExchange(Form& form, int id, char* comment, std::size_t size);
