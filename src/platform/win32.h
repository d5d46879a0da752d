// The one way to the Win32 API. Every source includes this header and never <windows.h>, so that
// the Windows build and the native build see the same names, types and signatures.
#pragma once

#ifdef _WIN32

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
// commdlg.h, dlgs.h and shellapi.h lean on what windows.h defines.
// clang-format off
#include <windows.h>
#include <cderr.h>
#include <commctrl.h>
#include <commdlg.h>
#include <dlgs.h>
#include <shellapi.h>
// clang-format on

#else

#include "platform/standin/types.h"
// types.h first: the other two use its names.
#include "platform/standin/constants.h"
#include "platform/standin/functions.h"

#endif
