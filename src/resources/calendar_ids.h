/* The calendars: 3740 to 3779.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_CALENDAR_IDS_H
#define MIRRELL_RESOURCES_CALENDAR_IDS_H

#include "clock_calendar_ids.h"

#define IDD_SelCalenderDlg 3740
#define IDC_SEL_SHOW 101
#define IDC_SEL_LIST 102
#define IDC_SEL_NAME 103
#define IDC_SEL_SPAN 104
#define IDC_SEL_LOAD 105
#define IDC_SEL_EDIT 106

#define IDD_CalenderAdustDlg 3741
#define IDC_CALEN_NAME 101
#define IDC_CALEN_FORMAT 102
#define IDC_CALEN_SIZE 103
#define IDC_CALEN_NOTE_MODE 104
#define IDC_CALEN_BASE 105
#define IDC_CALEN_SPAN 106
#define IDC_CALEN_YEAR 107
#define IDC_CALEN_MONTH 108
#define IDC_CALEN_DAY 109
#define IDC_CALEN_DAY_NOTE 110
#define IDC_CALEN_HOLIDAY 111
#define IDC_CALEN_STICKER 112
#define IDC_CALEN_IMAGE 113
#define IDC_CALEN_SET_BMP 114
#define IDC_CALEN_PICTURE 115
#define IDC_CALEN_NEAR 116
#define IDC_CALEN_CLEAR_NOTES 117
#define IDC_CALEN_CLEAR_HOLIDAYS 118
#define IDC_CALEN_CLEAR_STICKERS 119

#define IDD_CalenCommentDlg 3742
#define IDC_CALEN_NOTE_DAY 101
#define IDC_CALEN_NOTE 102

#define IDD_SelectCalenSheelDialog 3743
#define IDC_STICKER_OFF 101

#define IDD_SetCalenBmpDlg 3744
#define IDC_BMP_MONTH 101
#define IDC_BMP_ON 102
#define IDC_BMP_COLOUR_ONLY 103
#define IDC_BMP_BACKGROUND 104
#define IDC_BMP_PICK 105
#define IDC_BMP_RED 106
#define IDC_BMP_GREEN 107
#define IDC_BMP_BLUE 108
/* The controls of the two figures: the number of the figure's first one and these. */
#define IDC_BMP_FIGURE1 120
#define IDC_BMP_FIGURE2 140
#define IDC_FIGURE_CHARA 0
#define IDC_FIGURE_FRAME 1
#define IDC_FIGURE_X 2
#define IDC_FIGURE_Y 3
#define IDC_FIGURE_DIRECTION 4
#define IDC_FIGURE_PERIOD 5
#define IDC_FIGURE_STEP 6
#define IDC_FIGURE_START 7
#define IDC_FIGURE_BY_YEAR 8

#define IDD_DspCalenImageDlg 3745

#endif
