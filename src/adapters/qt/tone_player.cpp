#include "adapters/qt/tone_player.h"

namespace vigrel {
namespace {

constexpr double kHertz = 880;
constexpr int kMilliseconds = 200;

}  // namespace

cTonePlayer::cTonePlayer() {
    m_Player.OnEnded = [this](bool failed) {
        if (failed && OnSilent) OnSilent();
    };
}

void cTonePlayer::Play() {
    m_Player.Play([] { return MakeTone(kHertz, kMilliseconds); });
}

}  // namespace vigrel
