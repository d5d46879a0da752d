#pragma once

// Puts the picture on the clipboard as a bitmap (CF_BITMAP). Silent; the clipboard keeps its
// content when another program holds it.
void CopyToClipboard();
