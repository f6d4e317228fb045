#include "guide/frmCredits.h"

#include "core/Program.h"
#include "core/Version.h"
#include "guide/CreditsFile.h"
#include "platform/services/FileService.h"
#include "platform/services/TimeService.h"
#include "script/ProgramTitle.h"

namespace troth {

namespace {

constexpr wchar_t kFace[] = L"Times New Roman";
// Heights in the window, from 0 to 1. A heading takes the whole field; the names below it leave it standing.
constexpr double kHeadingTop = 0.5;
constexpr double kNameTop = 0.6;
constexpr double kFieldBottom = 0.8;

constexpr int kHeadingPoints = 15;
constexpr int kNamePoints = 27;
constexpr int kPointsAStep = 2;
constexpr int kStepMs = 20;
constexpr int kStartPauseMs = 1500;
constexpr int kHeadingPauseMs = 1000;
constexpr int kNamePauseMs = 2000;
constexpr int kPauseStepMs = 5;

}  // namespace

frmCredits::frmCredits(Program& program)
    : Form(program.platform.forms, {.name = L"frmCredits",
                                    .caption = std::wstring(kProgramTitle) + L" Credits",
                                    .clientSize = kWindow,
                                    .border = BorderStyle::FixedDialog,
                                    .isCentred = true}),
      program_(program) {
  cmdClose.OnClick = [this] { Unload(); };
  Ground.OnClick = [this] { Unload(); };
  tmrEffects.OnTimer = [this] { tmrEffects_Timer(); };
}

void frmCredits::Form_Load() {
  const Platform& platform = program_.platform;
  credits_ = BuiltInCredits();
  const auto bytes = platform.files.Read(platform.files.ProgramFolder() + L"\\Credits.dat");
  if (bytes) AppendCredits(credits_, *bytes, platform.text);
  CreditNumber = 1;
  LineNumber = 0;
  PrintTitle(kProgramTitle, 0.1, 30);
  PrintTitle(L"Version " + RunningVersion().Text(), 0.22, 15);
  tmrEffects.SetEnabled(true);
}

void frmCredits::PrintTitle(const std::wstring& text, double top, int points) {
  Ground.Print({0.5, top}, text, {.face = kFace, .points = static_cast<double>(points), .bold = true},
               kLetters);
}

void frmCredits::tmrEffects_Timer() {
  if (TickBusy) return;
  TickBusy = true;
  tmrEffects.SetEnabled(false);
  if (LineNumber > credits_.Item(CreditNumber).CreditDetails().Count()) {
    LineNumber = 0;
    ++CreditNumber;
  }
  if (CreditNumber > credits_.Count()) CreditNumber = 1;
  const CCredit& credit = credits_.Item(CreditNumber);
  if (LineNumber == 0) {
    ShowHeading(credit.CreditTitle());
    CreditsPause(kHeadingPauseMs);
  } else {
    Grow(credit.CreditDetails().Item(LineNumber).PTitle(), kNameTop, kNamePoints);
    CreditsPause(kNamePauseMs);
  }
  ++LineNumber;
  tmrEffects.SetEnabled(true);
  TickBusy = false;
}

void frmCredits::ShowHeading(const std::wstring& heading) {
  if (CreditNumber == 1) {
    Ground.FillBox({0, kHeadingTop}, {1, kFieldBottom}, kGround);
    Ground.Repaint();
    CreditsPause(kStartPauseMs);
  }
  Grow(heading, kHeadingTop, kHeadingPoints);
}

void frmCredits::Grow(const std::wstring& text, double top, int lastSize) {
  for (int points = 1; points <= lastSize; points += kPointsAStep) {
    const CanvasFont font{.face = kFace, .points = static_cast<double>(points), .bold = true};
    Ground.FillBox({0, top}, {1, kFieldBottom}, kGround);
    Ground.Print({0.5 - Ground.TextWidth(text, font) / 2, top}, text, font, kLetters);
    Ground.Repaint();
    program_.platform.time.Sleep(kStepMs);
  }
}

void frmCredits::CreditsPause(int ms) {
  TimeService& time = program_.platform.time;
  const std::uint32_t start = time.TickCount();
  while (time.TickCount() - start < static_cast<std::uint32_t>(ms)) time.Sleep(kPauseStepMs);
}

}  // namespace troth
