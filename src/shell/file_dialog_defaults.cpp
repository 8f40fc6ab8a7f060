#include "shell/file_dialog_defaults.h"

#include "shell/text.h"

char FileDialogFilter[64];
char FileDialogPath[260];
char FileDialogTitle[512];

void FileDialogDefaultsSet() {
  TextCopy(FileDialogFilter, sizeof FileDialogFilter, "Schedule Files (*.GPI)");
  FileDialogPath[0] = '\0';
  FileDialogTitle[0] = '\0';
}
