#include "shell/file_dialog_defaults.h"

#include "services/text.h"

FileDialogDefaultsState FileDialogDefaults;

void FileDialogDefaultsSet() {
  TextCopy(FileDialogDefaults.FileDialogFilter, sizeof FileDialogDefaults.FileDialogFilter,
           "Schedule Files (*.GPI)");
  FileDialogDefaults.FileDialogPath[0] = '\0';
  FileDialogDefaults.FileDialogTitle[0] = '\0';
}
