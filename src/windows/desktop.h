#pragma once

#include <functional>

#include "platform/windows.h"

namespace vigrel {

// The primary screen, all of it.
class cQtScreen : public cScreen {
  public:
    double Width() const override;
    double Height() const override;
    double TwipsPerPixelX() const override;
    double TwipsPerPixelY() const override;
};

class cQtClipboard : public cClipboard {
  public:
    void Clear() override;
    void SetText(std::string_view text) override;
};

// The bell of the desktop is silent on many machines. So a tone of our own comes first; the bell is for
// machines that can't play it.
class cQtBeeper : public cBeeper {
  public:
    // Starts the tone without waiting for its end; false when it can't be played.
    explicit cQtBeeper(std::function<bool()> playTone = nullptr) : m_PlayTone(std::move(playTone)) {}
    void Beep() override;

  private:
    std::function<bool()> m_PlayTone;
};

}  // namespace vigrel
