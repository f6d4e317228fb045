// A line of text at the lower edge of a form.
#pragma once

#include "platform/forms/Control.h"

namespace troth {

struct StatusBarOptions {
  std::wstring name;
  std::wstring text = {};
  Rect bounds;
};

class StatusBar final : public Control {
 public:
  StatusBar(ControlHost& host, StatusBarOptions options)
      : Control(host, {.name = std::move(options.name), .toolTip = {}, .bounds = options.bounds}),
        text_(std::move(options.text)) {}

  const std::wstring& Text() const { return text_; }
  void SetText(std::wstring text) {
    text_ = std::move(text);
    Refresh(Aspect::Text);
  }

  bool IsTabStop() const override { return false; }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::wstring text_;
};

}  // namespace troth
