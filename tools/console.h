#pragma once

// While it lives, a console shows the program's texts as the UTF-8 that they are.
class ConsoleText {
 public:
  ConsoleText();
  ~ConsoleText();
  ConsoleText(const ConsoleText&) = delete;
  ConsoleText& operator=(const ConsoleText&) = delete;

 private:
  unsigned before_ = 0;
};
