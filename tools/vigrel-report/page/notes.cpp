#include "common/printable.h"
#include "vigrel-report/page/document.h"

#include "vigrel-report/figures/periods.h"

namespace vigrel::report {
namespace {

constexpr Seconds kShort = 30 * kDay;

std::string Lasting(const cForms& forms, Seconds seconds) {
    return forms.Duration(static_cast<double>(seconds));
}

class cNotes {
  public:
    cNotes(const cReport& report, const cForms& forms) : m_Report(report), m_Forms(forms) {}

    std::vector<std::string> Make() {
        NotePeriod();
        for (std::size_t i = 0; i < m_Report.figures.stations.size(); ++i) {
            const std::string name = StationText(m_Report.figures.stations[i]);
            NoteStation(name, m_Report.figures.stations[i]);
            NoteRecord(name, m_Report.plant.stations[i]);
        }
        NoteEvents();
        NoteSenders();
        return std::move(m_Notes);
    }

  private:
    void Add(eWord word, const std::vector<std::string>& values = {}) {
        m_Notes.push_back(m_Forms.Say(word, values));
    }
    // A note about something that is there at all.
    void AddCount(eWord word, std::size_t count) {
        if (count > 0) Add(word, {m_Forms.Count(count)});
    }
    void AddCount(eWord word, const std::string& station, std::size_t count) {
        if (count > 0) Add(word, {station, m_Forms.Count(count)});
    }

    void NotePeriod() {
        const cFigures& figures = m_Report.figures;
        if (figures.load.observed < kShort) Add(eWord::NoteShort, {Lasting(m_Forms, figures.load.observed)});
        if (figures.unlogged > 0) Add(eWord::NoteUnlogged, {Lasting(m_Forms, figures.unlogged)});
    }
    void NoteStation(const std::string& name, const cStationFigures& station) {
        if (station.notKnown > 0) Add(eWord::NoteGap, {name, Lasting(m_Forms, station.notKnown)});
        if (station.removed > 0) {
            Add(eWord::NoteRemoved, {name, m_Forms.Number(static_cast<double>(station.removed))});
        }
    }
    void NoteRecord(const std::string& name, const cStationRecord& record) {
        const cRecordFaults& faults = record.faults;
        if (faults.damagedLines + faults.unknownLines > 0) {
            Add(eWord::NoteDamaged, {name, m_Forms.Count(faults.damagedLines), m_Forms.Count(faults.lines),
                                     m_Forms.Count(faults.unknownLines)});
        }
        for (const std::string& file : faults.foreignFiles)
            Add(eWord::NoteForeign, {name, PrintablePath(file)});
        for (const std::string& file : faults.unreadableFiles)
            Add(eWord::NoteUnreadable, {name, PrintablePath(file)});
        AddCount(eWord::NoteAlarmFiles, name, faults.damagedAlarms);
        for (const cLogTime::cSetBack& setBack : record.setBacks) {
            if (!m_Report.figures.period.Holds(setBack.to)) continue;
            Add(eWord::NoteSetBack, {name, m_Forms.Time(setBack.to), Lasting(m_Forms, setBack.by)});
        }
        AddCount(eWord::NoteQuietDays, name, faults.quietDays);
        AddCount(eWord::NotePrintWords, name, faults.doublePrintLines);
        AddCount(eWord::NoteAcknowledgements, name, faults.acknowledgements);
    }
    void NoteEvents() {
        AddCount(eWord::NoteRepeats, m_Report.figures.repeats);
        AddCount(eWord::NoteToldTwice, m_Report.plant.toldTwice);
        AddCount(eWord::NoteUncertain, m_Report.names.UncertainBodies());
        AddCount(eWord::NoteLeftOut, m_Report.figures.answers.leftOut);
        bool unmapped = m_Report.settings.priorities.empty();
        for (const cGroupAnswers& group : m_Report.figures.answers.priorities) {
            unmapped = unmapped || (!group.priority && group.activations > 0);
        }
        if (unmapped && m_Report.figures.load.activations > 0) Add(eWord::NoteNoMapping);
    }
    void NoteSenders() {
        std::vector<bool> noted(m_Report.names.SenderCount());
        for (const cActivation* activation : Activations(m_Report.plant, m_Report.figures.period)) {
            const std::uint32_t sender = m_Report.names.Source(activation->source).sender;
            if (noted[sender] || m_Report.plant.tellsReturns[sender]) continue;
            noted[sender] = true;
            Add(eWord::NoteNoReturns, {NameText(m_Report.names.SenderName(sender))});
        }
    }

    const cReport& m_Report;
    const cForms& m_Forms;
    std::vector<std::string> m_Notes;
};

}  // namespace

std::vector<std::string> MakeNotes(const cReport& report, const cForms& forms) {
    return cNotes(report, forms).Make();
}

}  // namespace vigrel::report
