/* Numbers of the dialogs that test the dialog machinery itself. */
#ifndef MIRRELL_TESTS_SUPPORT_TEST_DIALOGS_H
#define MIRRELL_TESTS_SUPPORT_TEST_DIALOGS_H

#define IDD_TestControls 100
#define IDD_TestPlain 101
#define IDD_TestPanel 102
#define IDD_TestHouse 103
#define IDD_TestUntidy 104
#define IDD_TestForm 105
#define IDD_TestProgress 106
#define IDD_TestPageOne 107
#define IDD_TestPageTwo 108
#define IDM_Test 110
#define IDM_TestExtended 111
#define IDA_Test 112
#define IDS_Test 113

#endif
