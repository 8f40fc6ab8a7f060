#include "services/list_editor.h"

#include "platform/dialog.h"

namespace {

bool Refuse(WindowHandle dialog, const BoxWords& words) {
  BoxTell(dialog, words);
  return false;
}

bool Asked(WindowHandle dialog, const ListEditor& editor, const ListDeed& deed) {
  if (!deed.questionOf) return BoxAsk(dialog, deed.question);
  char text[kRowTextSize];
  deed.questionOf(ListEditorChosen(dialog, editor), text, sizeof text);
  return BoxAsk(dialog, text, deed.question.caption);
}

bool RowIsMissing(WindowHandle dialog, const ListEditor& editor, const ListDeed& deed) {
  return deed.needsRow && ListEditorChosen(dialog, editor) < 0;
}

}  // namespace

void ListEditorShow(WindowHandle dialog, const ListEditor& editor, int chosen) {
  RowsShow(dialog, editor.list, RowsOf(editor.count(), editor.text), chosen);
}

int ListEditorChosen(WindowHandle dialog, const ListEditor& editor) {
  const int row = ListSelected(dialog, editor.list);
  return row < editor.count() ? row : -1;
}

bool ListDeedRun(WindowHandle dialog, const ListEditor& editor, const ListDeed& deed) {
  if (RowIsMissing(dialog, editor, deed)) return Refuse(dialog, deed.noRow);
  if (deed.may && !deed.may()) return Refuse(dialog, deed.mayNot);
  if (!Asked(dialog, editor, deed) || RowIsMissing(dialog, editor, deed)) return false;
  const int row = ListEditorChosen(dialog, editor);
  if (!deed.act(dialog, row)) return Refuse(dialog, deed.failed);
  ListEditorShow(dialog, editor, deed.keepsRow ? row : -1);
  return true;
}
