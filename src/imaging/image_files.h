#pragma once

#include "imaging/bitmap_class.h"

// The filter of the image file dialogs: the library's types, then all files. Built by
// InitImageFiles, empty before.
extern char imageFilter[256];

// Starts the image library and builds imageFilter. False when the library does not start; every
// load fails then. Once per process, balanced by ImageUnInit at its end.
bool InitImageFiles();

// Writes the filter that offers the given pattern list, NUL separators and the double NUL at the
// end included. Patterns past 109 characters are left off from the last that fits.
void BuildImageFilter(const char* patterns, char (&filter)[256]);

// Loads a picture into an empty surface of either kind. 1 when loaded; 0, with the surface still
// empty, when the file can't be read or the surface not made. Throws std::bad_alloc.
int LoadImageFile(const char* path, BitmapClass& surface);

// The same for a file that a user names: a picture that memory can't hold is one that can't be
// read.
int TryLoadImageFile(const char* path, BitmapClass& surface);

// Writes the surface in the format of the path's extension. The library's result, 0 on failure.
int SaveImageFile(const char* path, const BitmapClass& surface);
