// Identifiers of the dialog in dialog.rc.
#pragma once

#define IDD_BOOKING 100
#define IDC_NAME 101
#define IDC_COUNTRY 102
#define IDC_NOTES 103
