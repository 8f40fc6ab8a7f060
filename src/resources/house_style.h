/* How dialogs of this program look.

   The dialog font is a fixed one of 16 pixels, 8 to a half-width column, so one
   dialog unit is exactly 2 pixels both ways: a pixel place (x, y) that the code
   draws at lies at (x / 2, y / 2) of the template.

   The grid: everything on multiples of 2 units; margins 6; lines of text 8 high;
   edit fields 12, combo boxes 12 closed, buttons 14 high, 4 units between
   controls. A full-width character is 8 units wide, a half-width one 4; a button is its
   text and 16 units at least. Every input has a mnemonic or stands behind a
   label that has one; mnemonics are half-width letters in brackets behind the
   text where the text leaves the choice. */
#define HOUSE_FONT FONT 12, "MS Gothic", 400, 0, 128
#define HOUSE_DIALOG DS_MODALFRAME | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN
#define HOUSE_POPUP WS_POPUP | WS_CLIPCHILDREN
