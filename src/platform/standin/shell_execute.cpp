#include "platform/standin/testing.h"

namespace {

standin::ShellRequest& LastRequest() {
  static auto* request = new standin::ShellRequest;
  return *request;
}

}  // namespace

const standin::ShellRequest& standin::LastShellRequest() { return LastRequest(); }

HINSTANCE ShellExecuteA(HWND window, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR directory,
                        INT show) {
  const auto text = [](LPCSTR given) { return std::string(given ? given : ""); };
  const int count = LastRequest().count + 1;
  LastRequest() = {count, window, text(verb), text(file), text(parameters), text(directory), show};
  // Anything above 32 means that it worked.
  return reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(33));
}
