#pragma once

// Asks for a file name and shows "SHP save options", which exports the picture as a sprite file
// and, when it is generated, its palette. Always 1.
int SaveAsShp();
