// The pictures of the characters that are kept while a scenario is open. The room of the
// characters has them; it is told when they go.
#pragma once

// The main file has been read: all of them go.
void SnryImagesRelease();
