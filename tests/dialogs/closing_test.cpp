#include <gtest/gtest.h>

#include "document/shell_calls.h"
#include "support/allocations.h"
#include "support/every_dialog.h"
#include "support/picture_difference.h"

namespace {

using Lines = std::vector<std::string>;

class ClosingTest : public EveryDialog {
 protected:
  void SetUp() override {
    EveryDialog::SetUp();
    shown_ = MakePicture(800, 520, [](int x, int y) { return doc.canvas.ReadPixel(x, y); });
  }
  void ExpectNothingChanged() const {
    RepaintView();
    EXPECT_EQ("", Difference(shown_, doc.canvas));
    EXPECT_EQ(1, doc.items.Count());
    EXPECT_EQ(0, doc.selectedItem);
    EXPECT_EQ(0, opened_.valid);
    EXPECT_STREQ("", path_);
    EXPECT_TRUE(IsWindowEnabled(doc.mainWindow));
    EXPECT_FALSE(std::filesystem::exists(File("new.shp")));
  }

  ImageClass shown_;
};

TEST_F(ClosingTest, CancelEscapeAndTheCloseBoxChangeNothing) {
  const std::function<void(HWND)> ways[] = {
      [](HWND dialog) { Press(dialog, IDCANCEL); },
      [](HWND) { PressKey(GetFocus(), VK_ESCAPE); },
      [](HWND dialog) {
        SendMessageA(dialog, WM_CLOSE, 0, 0);
        Settle();
      },
  };
  for (const auto& dialog : dialogs_) {
    for (const auto& leave : ways) {
      SCOPED_TRACE(dialog.caption);
      WithDialog(dialog.caption, dialog.open, [&](HWND window) {
        EXPECT_FALSE(IsWindowEnabled(doc.mainWindow));
        dialog.change(window);
        leave(window);
        EXPECT_FALSE(IsWindowVisible(window));
      });
      EXPECT_EQ(0, doc.cropPreview.valid);
      ExpectNothingChanged();
    }
  }
}

#ifndef _WIN32  // where the exception would have to pass through the system's own code
TEST_F(ClosingTest, RunningOutOfMemoryInOpeningChangesNothing) {
  for (const auto& dialog : dialogs_) {
    SCOPED_TRACE(dialog.caption);
    bool stood = false;
    user.When(dialog.caption, [&stood](HWND window) {
      FailAllocation(-1);
      stood = true;
      Press(window, IDCANCEL);
    });
    const auto open = [&] {
      try {
        dialog.open();
      } catch (const std::bad_alloc&) {
      }
      return stood;
    };
    // The preview adjusts the screenshot itself until the dialog is left.
    const int failures = FailEachAllocation(open, [this] { doc.screenshot = screenshot_; });
    ExpectNothingChanged();
    EXPECT_GT(failures, 10);
  }
}
#endif

TEST_F(ClosingTest, DialogWithoutItsCatalogueStaysOpenAndEmpty) {
  SetIconCount(3);
  WriteSettings("[SymbolsList]");
  user.Answer("Error", "Error: File Settings.ini invalid!", MB_ICONHAND, IDOK);
  WithDialog("Load screen settings", IDM_LOAD_SCREEN_SETTINGS,
             [](HWND dialog) { EXPECT_EQ(Lines(), Items(dialog, IDC_SETTINGS_ICON3)); });
  EXPECT_EQ(3, doc.iconCount) << "the first focus clicks no radio button";
}

}  // namespace
