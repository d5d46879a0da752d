#pragma once

#include "imaging/image_class.h"

// The pictures that the benchmarks run on.

// Gives the document what it has when the editor has started: the Allied map, two icons' places.
void LoadStartUp();

// Adds two icons and a screenshot to that, as a user does first.
void AddIconsAndScreenshot();

// Adds `count` items, one of them selected, spread over the picture.
void AddItems(int count);

// A full-size picture of its own for each name. `Map` is the composed start-up picture with icons
// and screenshot; in `Noise` every pixel has another colour; `Flat` has one.
ImageClass MapPicture();
ImageClass NoisePicture();
ImageClass FlatPicture();
