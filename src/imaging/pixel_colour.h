#pragma once

#include <cstdint>

#include "imaging/bitmap_class.h"

// Integer colour arithmetic on pixels 0x00RRGGBB. A function that builds a new pixel gives it a top
// byte of 0; one that returns its input unchanged keeps the input's.

// Replaces every pixel equal to `from` in all 32 bits. Nothing on an empty surface.
void ReplaceColor(BitmapClass& surface, uint32_t from, uint32_t to);

// Exchanges red and blue: turns a COLORREF into a pixel and back.
uint32_t SwapRedBlue(uint32_t colour);

// Moves each channel towards 255 by amount 256ths, 0 to 256; a larger amount changes nothing.
uint32_t Lighten(uint32_t colour, uint32_t amount);

// Moves each channel towards 0 by amount 256ths, 0 to 255; a larger amount changes nothing. A
// non-zero channel never reaches 0.
uint32_t Darken(uint32_t colour, uint32_t amount);

// Grey of the same brightness, with weights of 76, 151 and 28 256ths: white gives 254.
uint32_t Greyscale(uint32_t colour);

// Multiplies red, green and blue by factors of 0 to 255, in 256ths.
uint32_t ScaleChannels(uint32_t colour, uint32_t red, uint32_t green, uint32_t blue);

// Whether the surface holds pixels.
bool IsValid(const BitmapClass& surface);
