#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

#include "schedule/fakes.h"
#include "schedule/schedule_builder.h"

namespace vigrel::testing {

// A schedule in a fake container on a fake surface, worked with a mouse that speaks of rows and minutes.
class cScheduleBench {
  public:
    explicit cScheduleBench(const cContent& content = {}) {
        Load(m_Schedule, content);
        Recalculate();
        m_Transcript.Take();
    }
    void Recalculate() {
        cPaintObject* stored = nullptr;
        m_Schedule.RecalculateAndPrepareToPaint(m_Container, stored, &m_Paint);
    }
    static float X(double minute) { return static_cast<float>(30 + minute / 5); }
    static float Y(int row) { return static_cast<float>(row * 25 + 10); }

    void Down(int row, double minute, std::int16_t button = 1) {
        m_Schedule.MouseDown(m_Container, &m_Paint, button, 0, X(minute), Y(row));
    }
    void Move(int row, double minute) {
        m_Schedule.MouseMove(m_Container, &m_Paint, 1, 0, X(minute), Y(row));
    }
    void Up() { m_Schedule.MouseUp(m_Container, &m_Paint, 1, 0, 0, 0); }
    void Click(int row, double minute) {
        Down(row, minute);
        Up();
    }

    // "left ROW MINUTE", "right ROW MINUTE", "move ROW MINUTE", "up", separated by ";".
    void Play(const std::string& script) {
        std::istringstream steps(script);
        for (std::string step; std::getline(steps, step, ';');) {
            std::istringstream words(step);
            std::string verb;
            int row = 0;
            double minute = 0;
            words >> verb >> row >> minute;
            if (verb == "left") Down(row, minute, 1);
            if (verb == "right") Down(row, minute, 2);
            if (verb == "move") Move(row, minute);
            if (verb == "up") Up();
        }
    }

    std::string Selected() const {
        const PeriodPtr& period = m_Schedule.SelectedPeriod();
        if (!period) return "none";
        return std::to_string(period->m_StartMinute) + "-" + std::to_string(period->m_StopMinute);
    }
    std::string Fields() const { return m_Container.m_Start + "|" + m_Container.m_Stop; }

    cTranscript m_Transcript;
    cFakePaintObject m_Paint{m_Transcript};
    cFakeScheduleContainer m_Container{m_Transcript};
    cTimeSchedule m_Schedule;
};

}  // namespace vigrel::testing
