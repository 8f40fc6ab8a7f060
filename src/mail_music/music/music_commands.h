// Commands of the music table.
#pragma once

void MusicTableCommand();  // 1921
