// Input: what an operator does to a new schedule, four bytes a step: kind, two bytes of place or time, row.

#include "fuzz/fuzz_target.h"
#include "schedule/definition_files.h"
#include "schedule/fakes.h"
#include "schedule/schedule_builder.h"

namespace {

using namespace vigrel;

class cOperator {
  public:
    cOperator() {
        m_Schedule.SetDefaultPeriod();
        m_Schedule.m_UseCalendar = True16;
        m_Schedule.SetActive(9, True16);
        cPaintObject* stored = nullptr;
        m_Schedule.RecalculateAndPrepareToPaint(m_Container, stored, m_Surface);
    }

    void Step(int kind, int time, int row) {
        const float x = 28 + static_cast<float>(time % 1480) / 5, y = static_cast<float>(row % 210);
        switch (kind % 13) {
            case 0:
                return m_Schedule.MouseDown(m_Container, m_Surface, 1, 0, x, y);
            case 1:
                return m_Schedule.MouseDown(m_Container, m_Surface, 2, 0, x, y);
            case 2:
            case 3:
                return m_Schedule.MouseMove(m_Container, m_Surface, 1, 0, x, y);
            case 4:
                return m_Schedule.MouseUp(m_Container, m_Surface, 1, 0, x, y);
            case 5:
                return m_Schedule.Copy();
            case 6:
                return m_Schedule.Paste(m_Container, m_Surface);
            case 7:
                return m_Schedule.Delete(m_Container, m_Surface);
            case 8:
                return m_Schedule.SetTimeFrom00to24(m_Container, m_Surface);
            case 9:
                return m_Schedule.InvertTimeSchedule(m_Container, m_Surface);
            case 10:
                return m_Schedule.Group(m_Container, m_Surface);
            case 11:
                return m_Schedule.GroupMonFri(m_Container, m_Surface);
            default:
                return TypeTimes(time, row);
        }
    }

    // Whatever was done, in a drag or not, the schedule can be saved and read.
    void Check() {
        const auto fault = FaultOfScheduleFile(testing::Saved(m_Schedule));
        if (fault) std::fprintf(stderr, "%s\n", fault->English().c_str());
        fuzz::Require(!fault, "the schedule is sound");
    }

  private:
    void TypeTimes(int start, int stop) {
        m_Container.m_Start = std::to_string(start);
        m_Container.m_Stop = std::to_string(stop) + ":7";
        m_Schedule.ExtractTimeFromTextboxes(m_Container, m_Surface);
    }

    testing::cTranscript m_Transcript;
    // Nothing is drawn: the steps come faster without.
    cPaintObject* m_Surface = nullptr;
    testing::cFakeScheduleContainer m_Container{m_Transcript};
    cTimeSchedule m_Schedule;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    cOperator someone;
    for (std::size_t i = 0; i + 4 <= size; i += 4) {
        someone.Step(data[i], data[i + 1] * 256 + data[i + 2], data[i + 3]);
        someone.Check();
    }
    return 0;
}
