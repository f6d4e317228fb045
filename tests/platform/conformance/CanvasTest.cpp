// What is drawn on a canvas, where it lands, and how long it stays.
#include "platform/forms/Canvas.h"

#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

constexpr Color kBlack = 0;
constexpr Color kRed = 0x0000FF;
constexpr Color kGreen = 0x00FF00;
constexpr Color kBlue = 0xFF0000;
constexpr Color kWhite = 0xFFFFFF;

class CanvasForm final : public TestForm {
 public:
  explicit CanvasForm(Platform& platform) : TestForm(platform, L"frmCanvas") {}

  Canvas picture{*this, {.name = L"picture", .bounds = {0, 0, 6000, 3000}, .ground = kBlue}};
};

class CanvasTest : public ConformanceTest {
 protected:
  CanvasForm form{platform};

  Color At(double x, double y) {
    form.picture.Repaint();
    return desktop->ShownColor(form.picture, x, y);
  }
};

TEST_F(CanvasTest, FillsLandWhereTheScaleSays) {
  Show(form);
  EXPECT_EQ(At(0.5, 0.5), kBlue) << "the ground";
  form.picture.FillBox({0.5, 0.5}, {1, 1}, kRed);
  EXPECT_EQ(At(0.25, 0.75), kBlue);
  EXPECT_EQ(At(0.75, 0.25), kBlue);
  EXPECT_EQ(At(0.75, 0.75), kRed);
  EXPECT_EQ(At(0.99, 0.99), kRed) << "up to the edge";

  form.picture.SetScale({.left = -100, .top = 0, .right = 100, .bottom = 50});
  EXPECT_EQ(At(50, 37.5), kRed) << "what is there stays";
  form.picture.FillBox({-50, 40}, {-100, 0}, kGreen);
  EXPECT_EQ(At(-75, 20), kGreen) << "from any corner to the other";
  EXPECT_EQ(At(-25, 20), kBlue);

  const CanvasPoint roof[] = {{0, 20}, {40, 20}, {20, 0}};
  form.picture.FillPolygon(roof, kWhite);
  EXPECT_EQ(At(20, 10), kWhite);
  EXPECT_EQ(At(3, 3), kBlue);
  EXPECT_EQ(At(37, 3), kBlue);

  // 200 by 50 units on twice as wide as high: a unit is half as wide as it is high.
  form.picture.FillDisc({50, 25}, 20, kBlack);
  EXPECT_EQ(At(68, 25), kBlack);
  EXPECT_EQ(At(50, 33), kBlack);
  EXPECT_EQ(At(50, 37), kRed) << "round in spite of the scale";

  form.picture.Clear(kGreen);
  EXPECT_EQ(At(50, 25), kGreen);
}

TEST_F(CanvasTest, WhatWasDrawnStaysWhileTheFormIsCoveredOrHidden) {
  form.whenLoading = [this] { form.picture.FillBox({0, 0}, {0.5, 1}, kRed); };
  Show(form);
  EXPECT_EQ(At(0.25, 0.5), kRed) << "drawn before the form was seen";
  DeskForm cover(platform);
  Show(cover);
  form.picture.FillBox({0.5, 0}, {1, 1}, kGreen);
  Settle();
  cover.Unload();
  Settle();
  EXPECT_EQ(At(0.75, 0.5), kGreen);
  form.Hide();
  Settle();
  Show(form);
  EXPECT_EQ(At(0.25, 0.5), kRed);
  EXPECT_EQ(At(0.75, 0.5), kGreen);
}

TEST_F(CanvasTest, TextIsMeasuredInUnitsOfTheScale) {
  const CanvasFont small{.face = L"Times New Roman", .points = 10, .bold = true};
  const CanvasFont large{.face = L"Times New Roman", .points = 20, .bold = true};
  EXPECT_EQ(form.picture.TextWidth(L"Trothline", small), 0) << "not loaded";
  Show(form);
  const double width = form.picture.TextWidth(L"Trothline", small);
  EXPECT_GT(width, 0.05);
  EXPECT_LT(width, 0.3);
  EXPECT_EQ(form.picture.TextWidth(L"", small), 0);
  EXPECT_NEAR(form.picture.TextWidth(L"Trothline", large), 2 * width, 0.2 * width);
  EXPECT_GT(form.picture.TextWidth(L"Trothline and more", small), 1.5 * width);
  form.picture.SetScale({.right = 1000});
  EXPECT_NEAR(form.picture.TextWidth(L"Trothline", small), 1000 * width, 1);
}

}  // namespace

}  // namespace troth
