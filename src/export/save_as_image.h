#pragma once

// Asks for a file name and writes the picture there as an image file. 0 when the user cancelled or
// nothing was written. Silent.
int SaveAsImage();
