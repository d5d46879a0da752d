#pragma once

// Shows "Add new item": one picture of the SymbolsList catalogue, tinted in a side colour, becomes
// an item at (100, 100).
void OpenAddItem();
