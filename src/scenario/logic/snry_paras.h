// The parameters of a scenario: how they are listed, and what adds, changes and deletes
// them. A parameter's id is its slot plus one; a slot that was given up stays a gap.
#pragma once

#include "platform/types.h"
#include "scenario/storage/scenario.h"
#include "services/form.h"
#include "services/rows.h"

// --- Combo boxes: "未設定", and the used parameters in the order of their slots.

// From a parameter's id to its row, 0 for an id that is none, and back; 0 for a row that
// there is not.
int SnryParaRowOf(int id);
int SnryParaIdOf(int row);
Rows SnryParaRows();

// Shows a parameter, or takes its id back: an id that nothing has shows as "未設定" and is
// taken back as 0.
void SnryParaExchange(Form& form, int id, std::uint16_t& parameter);
// A parameter and a value of at most `digits` characters.
void SnryPairExchange(Form& form, int paraId, int valueId, SnryPair& pair, int digits = 3);
// The same with a value that has no sign, of at most five characters: 0 to 65535.
// kept: a value below 0 that is typed for a key or for a scroll is 0, unlike in the other
// dialogs of a scene.
void SnryUnsignedPairExchange(Form& form, int paraId, int valueId, SnryPair& pair);

// The name of a parameter by its id; "未設定" for one that is none.
const char* SnryParaName(int id);

// --- The list of parameters: "1. name" and its like, numbered from 1.

int SnryParaUsedCount();
int SnryParaSlotOfRow(int row);  // of the list, from 0; -1 for a row that there is not
void SnryParaListText(int row, char* text, int size);

// --- Editing

bool SnryParaNameIsTaken(const char* name);
// Puts a parameter into the slot behind the last; false when there is none left.
bool SnryParaAdd(const SnryParaRec& para);
void SnryParaChange(int slot, const SnryParaRec& para);
void SnryParaRemove(int slot);
