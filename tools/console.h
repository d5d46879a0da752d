#pragma once

// Makes a console show the program's texts as the UTF-8 that they are. The result is what
// RestoreConsole takes at the end: a console outlives the program.
unsigned UseUtf8Console();
void RestoreConsole(unsigned before);
