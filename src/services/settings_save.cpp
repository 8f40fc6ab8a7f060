#include "services/settings_save.h"

#include "services/boxes.h"

void SaveTold(WindowHandle dialog, bool saved, const char* caption) {
  if (!saved) BoxTell(dialog, "ファイルセーブできません", caption);
}
