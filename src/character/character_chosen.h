// What other features do when another main character was chosen. The shell, which
// knows them, defines it.
#pragma once

// The current character is another one than before.
void CharacterChosen();
