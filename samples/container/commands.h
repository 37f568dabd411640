// Identifiers of the menu and its keys in container.rc.
#pragma once

#define IDR_CONTAINER 100

#define ID_FILE_NEW 201
#define ID_FILE_OPEN 202
#define ID_FILE_SAVE 203
#define ID_FILE_SAVE_AS 204
#define ID_FILE_EXIT 205

#define ID_EDIT_INSERT 211
#define ID_EDIT_DELETE 212
#define ID_EDIT_PROPERTY 213
#define ID_EDIT_PAGES 214
#define ID_EDIT_COPY_LOG 215

#define ID_VIEW_RUN 221
#define ID_VIEW_FILL 222
#define ID_VIEW_CLEAR_LOG 223
#define ID_VIEW_NEXT_CONTROL 224
#define ID_VIEW_NEXT_PANE 225
#define ID_VIEW_PREVIOUS_PANE 226

#define ID_HELP_KEYS 231
#define ID_HELP_ABOUT 232
