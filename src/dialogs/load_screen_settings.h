#pragma once

// Shows "Load screen settings": side, number of icons, icons and screenshot. Every choice takes
// effect at once.
void OpenLoadScreenSettings();
