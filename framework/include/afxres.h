/// @file
/// The identifiers that programs and the framework share: control and pane ids, standard commands, strings.
///
/// Only preprocessor constants, so that resource scripts can include it. A command's string resource has the same
/// number: its first line is the message for the status bar.
#ifndef KY_FRAMEWORK_AFXRES_H
#define KY_FRAMEWORK_AFXRES_H

/// The number of a module's version resource.
#define VS_VERSION_INFO 1

/** @{ */
/// Id of a child that a frame lays out: control bars from FIRST to LAST, then the pane in the middle and its parts.
#define AFX_IDW_CONTROLBAR_FIRST 0xE800
#define AFX_IDW_CONTROLBAR_LAST 0xE8FF
#define AFX_IDW_TOOLBAR 0xE800
#define AFX_IDW_STATUS_BAR 0xE801
#define AFX_IDW_PREVIEW_BAR 0xE802
#define AFX_IDW_RESIZE_BAR 0xE803
#define AFX_IDW_REBAR 0xE804
#define AFX_IDW_DIALOGBAR 0xE805
#define AFX_IDW_PANE_FIRST 0xE900
#define AFX_IDW_PANE_LAST 0xE9FF
#define AFX_IDW_HSCROLL_FIRST 0xEA00
#define AFX_IDW_VSCROLL_FIRST 0xEA10
#define AFX_IDW_SIZE_BOX 0xEA20
#define AFX_IDW_PANE_SAVE 0xEA21
/** @} */

// Strings that the program may hold.

/// The application's name, when CWinApp is given none.
#define AFX_IDS_APP_TITLE 0xE000
/// What the message bar shows while no menu is open.
#define AFX_IDS_IDLEMESSAGE 0xE001
/// For programs in which the user picks something to be helped about; the framework has no such mode.
#define AFX_IDS_HELPMODEMESSAGE 0xE002

/** @{ */
/// What the user is told when an exception without a sentence of its own leaves a message handler: while a command was
/// carried out, or otherwise. Without these strings the framework has a sentence of its own.
#define AFX_IDP_INTERNAL_FAILURE 0xF108
#define AFX_IDP_COMMAND_FAILURE 0xF109
/** @} */

/// For the tool bar of a print preview, of programs that have one.
#define AFX_IDD_PREVIEW_TOOLBAR 30721

// Status bar panes.

/// A pane, or a menu item, without a command.
#define ID_SEPARATOR 0
/** @{ */
/// A pane with the state of a key or mode; its string resource is the text. Frames update those of Caps Lock, Num Lock
/// and Scroll Lock.
#define ID_INDICATOR_EXT 0xE700
#define ID_INDICATOR_CAPS 0xE701
#define ID_INDICATOR_NUM 0xE702
#define ID_INDICATOR_SCRL 0xE703
#define ID_INDICATOR_OVR 0xE704
#define ID_INDICATOR_REC 0xE705
#define ID_INDICATOR_KANA 0xE706
/** @} */

// Standard commands.

/** @{ */
/// A command that many programs have, under the number that everybody knows it by. Handling it is the program's affair;
/// the framework handles ID_APP_EXIT, ID_VIEW_TOOLBAR and ID_VIEW_STATUS_BAR when nobody else does.
#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_FILE_PAGE_SETUP 0xE105
#define ID_FILE_PRINT_SETUP 0xE106
#define ID_FILE_PRINT 0xE107
#define ID_FILE_PRINT_DIRECT 0xE108
#define ID_FILE_PRINT_PREVIEW 0xE109
#define ID_FILE_UPDATE 0xE10A
#define ID_FILE_SAVE_COPY_AS 0xE10B
#define ID_FILE_SEND_MAIL 0xE10C
#define ID_FILE_MRU_FIRST 0xE110
#define ID_FILE_MRU_FILE1 0xE110
#define ID_FILE_MRU_LAST 0xE11F

#define ID_EDIT_CLEAR 0xE120
#define ID_EDIT_CLEAR_ALL 0xE121
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_CUT 0xE123
#define ID_EDIT_FIND 0xE124
#define ID_EDIT_PASTE 0xE125
#define ID_EDIT_PASTE_LINK 0xE126
#define ID_EDIT_PASTE_SPECIAL 0xE127
#define ID_EDIT_REPEAT 0xE128
#define ID_EDIT_REPLACE 0xE129
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_UNDO 0xE12B
#define ID_EDIT_REDO 0xE12C

#define ID_WINDOW_NEW 0xE130
#define ID_WINDOW_ARRANGE 0xE131
#define ID_WINDOW_CASCADE 0xE132
#define ID_WINDOW_TILE_HORZ 0xE133
#define ID_WINDOW_TILE_VERT 0xE134
#define ID_WINDOW_SPLIT 0xE135

#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141

#define ID_NEXT_PANE 0xE150
#define ID_PREV_PANE 0xE151

#define ID_VIEW_TOOLBAR 0xE800
#define ID_VIEW_STATUS_BAR 0xE801
/** @} */

/// And on: the open children of an MDI frame in its window menu.
#define AFX_IDM_FIRST_MDICHILD 0xFF00

#ifndef IDC_STATIC
/// The id of controls that nobody asks for.
#define IDC_STATIC (-1)
#endif

#endif
