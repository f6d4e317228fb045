// What a label says and where it stands.
#include "screenshots/ScreenshotLabel.h"

#include <gtest/gtest.h>

#include "platform/headless/HeadlessTime.h"

namespace troth {

namespace {

class ScreenshotLabelTest : public testing::Test {
 protected:
  HeadlessJournal journal;
  HeadlessTime time{journal};  // it is 15 June 2001, 21:05:03
};

TEST_F(ScreenshotLabelTest, JoinsWhatTheOptionsAskFor) {
  const struct {
    bool names, date, comment;
    const wchar_t* groom;
    const wchar_t* bride;
    const wchar_t* label;
  } cases[] = {
      {true, true, false, L"Alan", L"Beth", L"Alan and Beth - Friday, June 15, 2001 - 9:05:03 PM"},
      {false, true, false, L"Alan", L"Beth", L"Friday, June 15, 2001 - 9:05:03 PM"},
      {true, false, true, L"  Alan ", L" Beth  ", L"Alan and Beth -  At the mill "},
      {true, true, true, L"A", L"B", L"A and B - Friday, June 15, 2001 - 9:05:03 PM -  At the mill "},
      {true, true, false, L"", L" ", L" and  - Friday, June 15, 2001 - 9:05:03 PM"},
      {false, false, true, L"Alan", L"Beth", L" At the mill "},
      {false, false, false, L"Alan", L"Beth", L""},
  };
  for (const auto& c : cases) {
    ScreenshotOptions options;
    options.includeNames = c.names;
    options.includeDate = c.date;
    options.includeCounselor = c.comment;
    options.counselorName = L" At the mill ";
    EXPECT_EQ(LabelText(options, c.groom, c.bride, time), c.label);
  }
}

TEST_F(ScreenshotLabelTest, DateHasFullNamesAndNoLeadingZeros) {
  const struct {
    LocalTime now;
    const wchar_t* label;
  } cases[] = {
      {{2026, 11, 1, 0, 0, 0, 0}, L"Sunday, November 1, 2026 - 12:00:00 AM"},
      {{2000, 2, 29, 12, 30, 9, 2}, L"Tuesday, February 29, 2000 - 12:30:09 PM"},
      {{1999, 12, 31, 23, 59, 59, 5}, L"Friday, December 31, 1999 - 11:59:59 PM"},
      {{2000, 1, 1, 1, 2, 3, 6}, L"Saturday, January 1, 2000 - 1:02:03 AM"},
  };
  ScreenshotOptions options;
  options.includeDate = true;
  for (const auto& c : cases) {
    time.SetNow(c.now);
    EXPECT_EQ(LabelText(options, L"", L"", time), c.label);
  }
}

TEST_F(ScreenshotLabelTest, StandsInItsCornerBelowTheTitleBar) {
  const struct {
    int position, topMargin;
    PixelRect rect;
    TextSide side;
  } cases[] = {
      {0, 0, {5, 5, 630, 21}, TextSide::Left},     {1, 0, {5, 5, 630, 21}, TextSide::Right},
      {2, 0, {5, 459, 630, 475}, TextSide::Left},  {3, 0, {5, 459, 630, 475}, TextSide::Right},
      {0, 20, {5, 25, 630, 41}, TextSide::Left},   {1, 20, {5, 25, 630, 41}, TextSide::Right},
      {2, 20, {5, 459, 630, 475}, TextSide::Left}, {3, 20, {5, 459, 630, 475}, TextSide::Right},
  };
  for (const auto& c : cases) {
    const auto place = PlaceLabel(c.position, {640, 480}, c.topMargin, 16);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->rect, c.rect) << c.position << ' ' << c.topMargin;
    EXPECT_EQ(place->side, c.side) << c.position;
  }
  EXPECT_FALSE(PlaceLabel(4, {640, 480}, 0, 16));
  EXPECT_FALSE(PlaceLabel(-1, {640, 480}, 0, 16));
}

}  // namespace
}  // namespace troth
