// The pointer of the display, moved the way a hand would: the events come to the
// programs from the display itself.
#pragma once

// Puts the pointer to a place on the screen and waits until it is there.
void PointerTo(int x, int y);
// Puts it into the corner of the screen, where no window is.
void PointerAway();
// A press and release of the left button where the pointer is.
void PointerClick();
// Two of them, as quick as a double click.
void PointerDoubleClick();
// The left button goes down and stays so, or comes up.
void PointerHold(bool down);
// So many notches of the wheel, away from the user counted up.
void PointerWheel(int notches);
// A key goes down and up, by its name ("Escape").
void KeyPress(const char* name);
// Letters and digits, one key after the other.
void KeysType(const char* text);
