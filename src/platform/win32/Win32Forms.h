// Makes the forms of the real desktop and runs the program until the last one has gone.
#pragma once

#include "platform/forms/FormBackend.h"
#include "platform/win32/Win32Loop.h"

namespace troth {

class Win32Forms final : public FormBackend {
 public:
  explicit Win32Forms(Win32Loop& loop);

  std::unique_ptr<FormPeer> Create(Form& form) override;
  void RunUntilLastFormIsGone() override;
  MonitorList Monitors() const override;
  Rect FromPixels(const PixelRect& place) const override;
  const Form* ActiveForm() const override;
  bool HasContrastTheme() const override;

 private:
  Win32Loop& loop_;
};

}  // namespace troth
