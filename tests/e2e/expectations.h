#pragma once

#include <string>

#include "imaging/image_class.h"

// What a picture that the editor saved must show, worked out anew from the template package. Each
// names the first wrong pixel.

// The world map of the side with its pixel (x, y) at the corner, where the overlay is transparent
// and nothing of the top layer lies (left of the target box, and below the frame).
void ExpectWorldMap(const ImageClass& picture, const std::string& map, const std::string& overlay,
                    int x, int y);
// The zoomed map with its pixel (x, y) at the corner of the frame's window. Items may lie outside.
void ExpectZoomedMap(const ImageClass& picture, int x, int y);
// The target box at (232, y), but for its left columns, where the lines begin.
void ExpectTargetBox(const ImageClass& picture, int y);
// `expected` at (x, y), but for its pixels of the key colour.
void ExpectPart(const ImageClass& picture, const ImageClass& expected, int x, int y,
                const std::string& what);

// The sprite file and its palette hold exactly what reducing this picture to `colours` gives.
void ExpectSprite(const std::string& shpPath, const std::string& palPath, const ImageClass& picture,
                  int colours);

// Whether the screen or the clipboard shows this saved picture, with the target box at (232, boxY).
// There the lines at the box go in slightly different steps and lack their last pixels, so pixels
// near the lines may differ.
bool SameOnScreen(const ImageClass& shown, const ImageClass& saved, int boxY);
