// Whether something modal stands in the user's way.
#pragma once

// A modal dialog of a feature, a property sheet, the program's file picker, or a file dialog
// of the system is up. Modeless windows, and commands from outside, open no dialog then.
bool ModalIsUp();
