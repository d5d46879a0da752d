// On Windows the stand-in's functions are declared once more behind the platform's own: a signature
// that differs does not compile.
#ifdef _WIN32
#include "platform/win32.h"
#pragma GCC diagnostic ignored "-Wattributes"  // theirs are imported, ours are not
#include "platform/standin/functions.h"
#endif
