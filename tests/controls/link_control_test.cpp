#include "controls/link_control.h"

#include <gtest/gtest.h>

#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"

namespace {

class LinkControlTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    link = CreateWindowExA(0, "LinkClass", "Link", WS_POPUP | WS_VISIBLE, 0, 0, 120, 20,
                           doc.mainWindow, nullptr, GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(nullptr, link);
  }
  void TearDown() override {
    DestroyWindow(link);
    EditorFixture::TearDown();
  }
  LRESULT SetAddress(const std::string& address) {
    return SendMessageA(link, LM_SETADDRESS, reinterpret_cast<WPARAM>(address.c_str()), 0);
  }
  std::string Address() const {
    const auto* address =
        reinterpret_cast<const std::string*>(GetWindowLongPtrA(link, GWLP_USERDATA));
    return address ? *address : "none";
  }

  HWND link = nullptr;
};

TEST_F(LinkControlTest, KeepsACopyOfItsAddress) {
  EXPECT_EQ("none", Address());
  EXPECT_EQ(1, SetAddress("one"));
  EXPECT_EQ("one", Address());
  EXPECT_EQ(1, SetAddress(std::string(255, 'a')));
  EXPECT_EQ(0, SetAddress(std::string(256, 'b')));
  EXPECT_EQ(0, SendMessageA(link, LM_SETADDRESS, 0, 0));
  EXPECT_EQ(std::string(255, 'a'), Address()) << "a refused address changes nothing";
  EXPECT_EQ(1, SetAddress(""));
  EXPECT_EQ("", Address());
}

TEST_F(LinkControlTest, ClickWithoutAddressDoesNothing) {
  EXPECT_EQ(0, SendMessageA(link, WM_LBUTTONUP, 0, 0));
}

TEST_F(LinkControlTest, TextIsBlueOnTheDialogFace) {
  bool blue = false;
  for (int i = 0; i < 120 * 20; ++i) {
    const uint32_t pixel = WindowPixel(link, i % 120, i / 120);
    blue = blue || pixel == 0x0000FF;
  }
  EXPECT_TRUE(blue);
  EXPECT_EQ(FaceColour(), WindowPixel(link, 0, 0));
}

TEST_F(LinkControlTest, FontIsMadeOnce) {
  const HFONT font = doc.linkFont.get();
  RegisterLinkClass();
  EXPECT_EQ(font, doc.linkFont.get());
  LOGFONTA description{};
  GetObjectA(font, sizeof description, &description);
  EXPECT_EQ(15, description.lfHeight);
  EXPECT_EQ(FW_BOLD, description.lfWeight);
  EXPECT_NE(0, description.lfUnderline);
  EXPECT_EQ(VARIABLE_PITCH, description.lfPitchAndFamily);
}

}  // namespace
