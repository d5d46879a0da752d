#pragma once

// File, "Save as SHP...": asks for the sprite's name, then shows "SHP save options", which exports.
// Always 1.
int SaveAsShp();

// File, "Save as...": composes the picture and asks where to save it. 0 when nothing was saved.
int SaveAsImage();
