#pragma once

// Shows "Select item": every item as a line of text, of which the selected one is selected in the
// view too.
void OpenSelectItem();
