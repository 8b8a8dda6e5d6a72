// The toolkit's named values: messages, message masks, window flags, gadget flags and types, keys.
#pragma once

// Mouse bits: a gadget's action mask, and `mouse_action` of a mouse message.
#define ACT_RMOUSE_UP 0x1
#define ACT_RMOUSE_DOWN 0x2
#define ACT_RMOUSE_DBL 0x4
#define ACT_RMOUSE_DROP 0x8
#define ACT_LMOUSE_UP 0x10
#define ACT_LMOUSE_DOWN 0x20
#define ACT_LMOUSE_DBL 0x40
#define ACT_LMOUSE_DROP 0x80
#define ACT_MOUSE_WHEEL_UP 0x100
#define ACT_MOUSE_WHEEL_DOWN 0x200
#define ACT_MOUSE_WHEEL 0x300
#define ACT_MOUSE_MOVE 0x400  // toolkit-internal: a move while a button is held

// Window messages: message 0x1000 + n is enabled by bit n of a window's idcmp mask.
#define ACT_LOOSE_CONTEXT 0x1000
#define ACT_GAIN_CONTEXT 0x1001
#define ACT_TERMINATE 0x1002
#define ACT_HOVER 0x1003
#define ACT_KEY 0x1004
#define ACT_WINDOW_MOVE 0x1005
#define ACT_WINDOW_RESIZE 0x1006
#define ACT_MENU_OPEN 0x1007
#define ACT_RECEIVE_OBJECT 0x1008
#define ACT_MENU_PICK 0x1009  // a menu entry or command: always delivered, item code = the entry's
#define ACT_FIRSTTIME_RUN 0x100a
#define ACT_TITLEBAR 0x100b
#define ACT_REFRESH_DAMAGED 0x100d
#define ACT_REQUESTER_OK 0x100e
#define ACT_REQUESTER_CANCEL 0x100f
#define ACT_REQUESTER_RETRY 0x1010
#define ACT_REQUESTER_ABORT 0x1011
#define ACT_REQUESTER_PREVIEW 0x1012
#define ACT_REQUESTER_TERMINATE 0x1014
#define ACT_EXTERNAL_REBUILD 0x1015
#define ACT_INTERNAL_REBUILD 0x1016

#define IDCMP_LOOSE_CONTEXT 0x1
#define IDCMP_GAIN_CONTEXT 0x2
#define IDCMP_TERMINATE 0x4
#define IDCMP_HOVER 0x8
#define IDCMP_KEY 0x10
#define IDCMP_WINDOW_MOVE 0x20
#define IDCMP_WINDOW_RESIZE 0x40
#define IDCMP_MENU_OPEN 0x80
#define IDCMP_RECEIVE_OBJECT 0x100
#define IDCMP_FIRSTTIME_RUN 0x400
#define IDCMP_TITLEBAR 0x800
#define IDCMP_REFRESH_DAMAGED 0x2000
#define IDCMP_REQUESTER_OK 0x4000
#define IDCMP_REQUESTER_CANCEL 0x8000
#define IDCMP_REQUESTER_RETRY 0x10000
#define IDCMP_REQUESTER_ABORT 0x20000
#define IDCMP_REQUESTER_PREVIEW 0x40000
#define IDCMP_REQUESTER_TERMINATE 0x100000
#define IDCMP_EXTERNAL_REBUILD 0x200000
#define IDCMP_INTERNAL_REBUILD 0x400000

// Window flags.
#define WF_BACKDROP 0x1
#define WF_OPEN_FULLSCREEN 0x2
#define WF_CLOSE 0x4
#define WF_RESIZE 0x8
#define WF_TITLE 0x10
#define WF_MOVE 0x20
#define WF_BORDER 0x40
#define WF_MAXIMISE 0x80
#define WF_MINIMISE 0x100
#define WF_CHILD 0x200
#define WF_DEPENDANT 0x400
#define WF_CLIP_PARENT 0x800
#define WF_IN_FRONT_MODIFY 0x1000
#define WF_NO_MOUSE 0x2000
#define WF_NO_BACK 0x4000
#define WF_IN_FRONT 0x8000
#define WF_TASKBAR 0x10000
#define WF_ALTF4 0x40000
#define WF_CLEAR_ZBUFFER 0x80000
#define WF_SEETHROUGH 0x100000

// Window state (`state`) and state flags (`state_flags`).
#define WINDOW_STATE_OPEN 32       // the window stands as a window
#define WINDOW_STATE_MINIMISED 64  // shown as a button at the bottom of the screen
#define WSF_MODIFIED 0x10          // owner's mark: a page is modified
#define WSF_FIRSTTIME_DONE 0x40    // ACT_FIRSTTIME_RUN has been delivered
#define WSF_MAXIMISED 0x80         // `restore_rect` holds the place before maximising
#define WSF_REMOVED 0x200          // RemoveWindow was called; freed when no loop turn is on the stack

// Gadget flags.
#define GADGET_FLAGS_DISABLED 0x1
#define GADGET_FLAGS_NO_DISPLAY 0x2
#define GADGET_FLAGS_REPORT_DRAG 0x8
#define GADGET_FLAGS_SOLID 0x20
#define GADGET_FLAGS_PASSIVE 0x40
#define GADGET_FLAGS_FROM_KEYBOARD 0x80
#define GADGET_FLAGS_CURSOR 0x100
#define GADGET_FLAGS_AUTOSIZE 0x200
#define GADGET_FLAGS_HORIZONTAL 0x400
#define GADGET_FLAGS_VERTICAL 0x800
#define GADGET_FLAGS_XY 0xc00
#define GADGET_FLAGS_LEFT_JUSTIFY 0x1000
#define GADGET_FLAGS_HILIGHT 0x2000
#define GADGET_FLAGS_BOLD 0x4000
#define GADGET_FLAGS_ITALICS 0x8000
#define GADGET_FLAGS_PUSH 0x10000
#define GADGET_FLAGS_NO_BORDER 0x20000
#define GADGET_FLAGS_DEPRESSED 0x40000
#define GADGET_FLAGS_ICON 0x80000
#define GADGET_FLAGS_SECRET 0x800000
#define GADGET_FLAGS_FROM_RIGHT 0x1000000
#define GADGET_FLAGS_FROM_BOTTOM 0x2000000

// Marks in a gadget's live flags.
#define GADGET_MARK_CREATED 0x100000
#define GADGET_MARK_DRAG 0x200000
#define GADGET_MARK_SELECTED 0x400000

// Gadget types.
#define GADGET_TYPE_BUTTON 1
#define GADGET_TYPE_SLIDER 2
#define GADGET_TYPE_VU_16 3
#define GADGET_TYPE_VU_32 4
#define GADGET_TYPE_CHECK_BOX 5
#define GADGET_TYPE_DROP_BOX 6
#define GADGET_TYPE_TEXT 7
#define GADGET_TYPE_LIST_BOX 8
#define GADGET_TYPE_GROUP 9
#define GADGET_TYPE_STRING 10
#define GADGET_TYPE_RADIOBUTTON 11
#define GADGET_TYPE_COLOUR_FLAT 12
#define GADGET_TYPE_COLOUR_BAR 13
#define GADGET_TYPE_COLOUR_BOX 14
#define GADGET_TYPE_USER 15
#define GADGET_TYPE_TREE 16
#define GADGET_TYPE_TEXTURE 17
#define GADGET_TYPE_SCROLLBAR 18
#define GADGET_TYPE_COMBO 19
#define GADGET_TYPE_SCENE 21

// Qualifier bits of mouse and key messages.
#define QUAL_SHIFT 0x1
#define QUAL_ALT 0x4
#define QUAL_CONTROL 0x8
#define QUAL_GADGET_KEY 0x20  // keyboard_flags: the message is a key given to a gadget

// Key codes. Characters are their character code; Control with a letter is KEY_CTRL_A - 1 plus
// the letter's place in the alphabet (281 Ctrl+A ... 306 Ctrl+Z); special keys 256 to 279.
#define KEY_BACKSPACE 8
#define KEY_TAB 9
#define KEY_RETURN 13
#define KEY_ESCAPE 27
#define KEY_UP 256
#define KEY_DOWN 257
#define KEY_LEFT 258
#define KEY_RIGHT 259
#define KEY_HOME 260
#define KEY_END 261
#define KEY_PAGE_UP 262
#define KEY_PAGE_DOWN 263
#define KEY_INSERT 264
#define KEY_DELETE 265
#define KEY_F1 266  // F1 to F12 are 266 to 277; F10 is 275
#define KEY_FUNCTION_COUNT 12
#define KEY_CTRL_A 281
#define KEY_CTRL(letter) (KEY_CTRL_A + ((letter) - 'A'))

// Mouse images.
#define MOUSE_IMAGE_ARROW 0
#define MOUSE_IMAGE_SIZE_WE 1
#define MOUSE_IMAGE_SIZE_NESW 2
#define MOUSE_IMAGE_SIZE_NS 3
#define MOUSE_IMAGE_SIZE_NWSE 4
#define MOUSE_IMAGE_TEXT 5
#define MOUSE_IMAGE_HAND 6
#define MOUSE_IMAGE_MOVE 17

// Handler events.
#define HANDLER_EVENT_END 1       // the window goes: release the handler's belongings
#define HANDLER_EVENT_MOUSE 32    // data: T_MOUSE_MSG
#define HANDLER_EVENT_BREAK 33    // a press in progress was broken off
#define HANDLER_EVENT_KEY 36      // data: T_KEY_MSG
#define HANDLER_EVENT_OUTSIDE 34  // a popup's: a press outside it, data: T_MOUSE_MSG

// Resource types.
#define RESOURCE_TYPE_SETTINGS 128
#define RESOURCE_TYPE_FONT 460
#define RESOURCE_TYPE_BITMAP 461
