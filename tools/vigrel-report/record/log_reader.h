#pragma once

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "vigrel-report/record/alarm_names.h"
#include "vigrel-report/record/log_forms.h"
#include "vigrel-report/record/log_time.h"
#include "vigrel-report/record/run_times.h"
#include "vigrel-report/record/station_record.h"

namespace vigrel::report {

// Reads the daily logs of one station, oldest first, into its record.
class cLogReader {
  public:
    // What is handed in outlives the reader.
    cLogReader(const cTimeZone& zone, cLogForms& forms, cAlarmNames& names, cStationRecord& record);

    // The content of a day's file, and the midnight of its day by the wall clock. False when no line of it is
    // a station's.
    bool ReadDay(WallTime midnight, std::string_view content);
    // After the last day: joins the stored alarms to those of the log, and finds when alarms were
    // acknowledged.
    void Finish(std::vector<cAlarmEvent> stored);
    const cLogTime& Time() const { return m_Time; }

  private:
    void ReadRecord(std::string_view text);
    void Take(const cLogLine& line, const cLogTime::cStamp& stamp);
    void TakeAlarm(const cLogLine& line, const cLogTime::cStamp& stamp);
    void TakeAcknowledged(const cLogLine& line, const cLogTime::cStamp& stamp);
    void TakePopup(const cLogLine& line, const cLogTime::cStamp& stamp);
    void TakePrint(const cLogLine& line, const cLogTime::cStamp& stamp);
    void TakeSenderRow(const cLogLine& line);
    void SettlePrint(std::string_view alarm);
    void Heard(std::uint32_t sender, Moment time);
    void Acknowledge();

    cLogForms& m_Forms;
    cAlarmNames& m_Names;
    cStationRecord& m_Record;
    cLogTime m_Time;
    cRunTimes m_RunTimes;
    std::size_t m_Understood = 0;  // lines of the day
    // An acknowledgement, which tells neither sender nor time of its alarm.
    struct cAcknowledgement {
        Moment order = 0;
        std::uint32_t body = 0;
    };
    std::vector<cAcknowledgement> m_Acknowledgements;
    std::string m_PopupAlarm;  // of the line before, when that told of an opened popup
    struct cDoubtfulPrint {
        std::string alarm;
        Moment time = 0;
    };
    std::optional<cDoubtfulPrint> m_Print;
    struct cContact {
        Moment last = 0;
        std::size_t run = 0;
    };
    std::unordered_map<std::uint32_t, cContact> m_Contacts;
};

}  // namespace vigrel::report
