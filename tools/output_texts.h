#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

// Each of these gives an empty text, or why the command cannot be carried out.

// A picture is written under a name of a type that keeps every colour.
std::string PictureNameFault(const std::string& path);
// A file that is written must be none of the others.
std::string OverwritingFault(const std::string& written, std::initializer_list<std::string> others);

// "800 x 520"
std::string SizeText(int32_t width, int32_t height);
// "1 pixel", "2 pixels"
std::string Counted(int32_t count, const char* what);
