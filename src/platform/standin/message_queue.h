// The thread's message queue and its clock, which runs only while the program waits.
#pragma once

#include "platform/win32.h"

namespace standin {

// Takes the next message, without waiting: posted ones first, then WM_QUIT, WM_PAINT and timers.
bool TakeMessage(MSG& message);

// Drops what is posted to a window and its timers.
void ForgetMessages(HWND window);

void PassTime(DWORD milliseconds);

}  // namespace standin
