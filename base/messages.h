// Message boxes: the one way in which the library speaks to a user.
//
// Every box has an empty title unless one is given and goes through the
// platform's message handler, which a host or a test can replace
// (pfnPlatformSetMessageHandler in base/platform.h).
#pragma once

#include "base/platform.h"

// Shows `text` with the box type `type`, always topmost, and returns the
// button chosen. With the OEM flag set the text is first converted from the
// console's code page; if the room for that cannot be had, nothing is shown
// and the result is 2.
int iMessageBox(const char* text, const char* title, unsigned int type);

// An internal warning.
void vMessageWarn(const char* text);
// A note for the user (the hash table statistics).
void vMessageInfo(const char* text);
// A fault that the user should report (the pool's tail release).
void vMessageError(const char* text);
// 1 when the user chose OK; `defaultOk` false makes Cancel the default.
bool boMessageOkCancel(const char* text, bool defaultOk);
// 1 when the user chose Yes; `defaultYes` false makes No the default.
bool boMessageYesNo(const char* text, bool defaultYes);
// 1 for Yes, 0 for No, -1 for Cancel. `defaultButton` 1 makes Yes the
// default, 0 No and -1 Cancel.
int iMessageYesNoCancel(const char* text, int defaultButton);

// Texts of boxes are in the console's code page when this is set. Nothing in
// the library sets it.
void vMessagesSetOem(bool flag);
