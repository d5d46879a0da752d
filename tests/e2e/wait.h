#pragma once

#include <functional>
#include <string>

// Looks again and again until the condition holds. When it does not within `seconds`, throws
// std::runtime_error with what was waited for, the windows that stand on the screen and the name of
// a picture of the screen, which fails the test.
void WaitUntil(const std::string& what, const std::function<bool()>& condition, int seconds = 30);

// Fails as WaitUntil does, at once.
[[noreturn]] void GiveUp(const std::string& why);
