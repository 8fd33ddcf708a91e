// The dialog templates of tests. Also read by the resource compiler.
#pragma once

#define IDD_TEST_SMALL 901
#define IDD_TEST_WIDE 902
#define IDD_TEST_FLAT 903
#define IDD_TEST_BORDER 904
#define IDD_TEST_WIDGETS 905

// Placeholders of IDD_TEST_WIDGETS.
#define IDC_TEST_BUTTON 1001
#define IDC_TEST_SMALL_BUTTON 1002
#define IDC_TEST_HIDDEN_BUTTON 1003
#define IDC_TEST_SECOND_BUTTON 1004
#define IDC_TEST_THIRD_BUTTON 1005
#define IDC_TEST_COMBO_BUTTON 1006
#define IDC_TEST_COMBO 1007
#define IDC_TEST_TIME 1008
#define IDC_TEST_EDIT 1009
#define IDC_TEST_NORMAL_MINUS 1010
