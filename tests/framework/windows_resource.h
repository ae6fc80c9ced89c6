// windows_resource.h - numbers of the resources that the tests of windows hold.
#pragma once

#define IDR_FRAME 200
#define IDD_SAMPLE 201
#define IDC_NAME 301
#define IDC_FLAG 302
#define IDC_CHOICE 303
#define IDM_CONTEXT 202
#define IDS_POSITION 211
#define IDS_UNHANDLED 212
#define IDS_TIP 213
#define IDS_QUESTION 214
