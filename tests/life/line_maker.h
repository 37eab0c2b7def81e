#pragma once

#include <random>
#include <string>

namespace vigrel::testing {

// Draws lines of the link: mostly good frames, and everything that is nearly one. No two good ones have the
// same text.
class cLineMaker {
  public:
    explicit cLineMaker(std::mt19937& draw) : m_Draw(draw) {}

    std::string Line();
    std::string LineEnd();

  private:
    int Below(int limit) { return static_cast<int>(m_Draw() % static_cast<unsigned>(limit)); }
    std::string Sender();
    std::string Record();
    std::string Date();
    std::string Time();
    std::string Digits(int count);
    std::string Text();
    std::string Category();
    std::string Garbage();

    std::mt19937& m_Draw;
    int m_Alarms = 0;
};

}  // namespace vigrel::testing
