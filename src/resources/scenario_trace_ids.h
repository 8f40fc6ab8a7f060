/* The trace of parameters.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCENARIO_TRACE_IDS_H
#define MIRRELL_RESOURCES_SCENARIO_TRACE_IDS_H

#define IDD_CheckParameterDlg 3980
#define IDD_CheckParameterDlg2 3981
#define IDD_CheckParameterDlg3 3982

#define IDC_TRACE_PARAMETERS 100
#define IDC_TRACE_CHANGES 101
#define IDC_TRACE_PROGRESS 102
#define IDC_TRACE_NAME 103
#define IDC_TRACE_LINES 104
#define IDC_TRACE_VALUE 105
#define IDC_TRACE_START 106

#endif
