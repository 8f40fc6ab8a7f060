#include "scenario/storage/snry_images.h"

// No pictures are kept yet.
void SnryImagesRelease() {}
