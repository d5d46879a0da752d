// Hours of use: what is done again and again leaves as much behind as it found. CORVANTA_LONG makes
// each activity a hundred times as long.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "platform/win32.h"
#ifdef _WIN32
#include <psapi.h>
#else
#include "platform/standin/testing.h"
#endif

#include "document/shell_calls.h"
#include "support/allocations.h"
#include "support/every_dialog.h"

namespace {

class LongUseTest : public EveryDialog {
 protected:
  // Live allocations, drawing objects, windows, and handles of the kernel.
  static std::array<size_t, 4> Held() {
#ifdef _WIN32
    const HANDLE process = GetCurrentProcess();
    DWORD handles = 0;
    GetProcessHandleCount(process, &handles);
    return {LiveAllocations(), GetGuiResources(process, GR_GDIOBJECTS),
            GetGuiResources(process, GR_USEROBJECTS), handles};
#else
    return {LiveAllocations(), standin::LiveGdiObjects()};
#endif
  }
  static size_t PrivateMebibytes() {
    size_t bytes = 0;
#ifdef _WIN32
    PROCESS_MEMORY_COUNTERS memory{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    bytes = memory.PagefileUsage;
#endif
    return bytes >> 20;
  }

  void Export() {
    user.ChooseFile("Save As", AppPath("out.shp"));
    WithDialog("SHP save options", IDM_SAVE_AS_SHP, [this](HWND dialog) {
      Type(dialog, IDC_SHP_NAME, AppPath("out.pal"));
      Press(dialog, IDOK);
    });
  }
};

TEST_F(LongUseTest, EveryActivityLeavesAsMuchAsItFound) {
  int side = Allied;
  struct Activity {
    const char* name;
    int count;
    std::function<void()> step;
  };
  std::vector<Activity> activities = {
      {"repaints", 1000, [] { RepaintView(); }},
      {"items added and removed", 100,
       [this] {
         AddItem(PlainPicture(20, 10, 1), 10, 400, 0);
         SelectItem(0);
         Command(IDM_DELETE_ITEM);
       }},
      {"exports", 5, [this] { Export(); }},
      {"sides", 2, [&side] { SetSide(side = (side + 1) % 3); }},
      {"copies", 5, [this] { Command(IDM_COPY); }},
  };
  for (const auto& dialog : dialogs_) {
    activities.push_back(
        {dialog.caption, 10, [&] { WithDialog(dialog.caption, dialog.open, [](HWND) {}); }});
  }
  const int length = std::getenv("CORVANTA_LONG") ? 100 : 1;
  for (const auto& activity : activities) {
    for (int i = 0; i < 3; ++i) activity.step();
    const std::array<size_t, 4> before = Held();
    const size_t mebibytes = PrivateMebibytes();
    for (int i = 0; i < activity.count * length; ++i) activity.step();
    EXPECT_EQ(before, Held()) << activity.name;
    EXPECT_LE(PrivateMebibytes(), mebibytes + 8) << activity.name;
    std::printf("%d %s\n", activity.count * length, activity.name);
  }
}

}  // namespace
