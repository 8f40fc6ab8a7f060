#include "services/modal.h"

#include "platform/dialog.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"

bool ModalIsUp() {
  return FamilyDialogIsUp() || FileDialogIsUp() || Picker.hFilePickDlg;
}
