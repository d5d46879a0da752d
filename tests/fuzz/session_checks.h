#pragma once

// What the running editor promises at any moment of a session. A broken promise ends the process.

// The document's and the view's fields are within their ranges and fit together and what the menu
// and the scroll bars show.
void CheckDocument();

// The picture is composed the same way twice, and `shown` in the view already. Repaints the view.
void CheckComposition(bool shown);
