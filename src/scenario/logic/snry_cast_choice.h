// Combo boxes of the current scene's cast.
#pragma once

#include <cstdint>

#include "scenario/storage/snry_cast_list.h"
#include "services/form.h"

// Shows a member of the cast, or takes its id back. An id that is not listed is shown as no
// row, and stays as it is while none is chosen.
void SnryCastExchange(Form& form, int id, SnryCastShow show, std::uint16_t& castId);
