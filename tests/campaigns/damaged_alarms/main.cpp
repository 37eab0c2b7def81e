// Damaged alarm files through a whole station: from the folder into the store and the list, onto the
// clipboard, through acknowledgement, arrivals and the age sweep, and out of the folder again. Run it under
// sanitizers.

#include <QApplication>
#include <QPixmap>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "campaigns/damaged_alarms/damage.h"
#include "campaigns/damaged_alarms/damaged_station.h"
#include "common/numbers.h"
#include "support/heard_warnings.h"
#include "support/temporary_folder.h"
#include "vigrel-inspect/alarm_export.h"

namespace vigrel::campaign {
namespace {

constexpr const char* kHelp =
    "damaged_alarms [--files N] [--seed S]\n\n"
    "Makes N (100000) alarm files with random damage, loads them in lots of 250, lists, sorts, draws, "
    "copies,\n"
    "acknowledges and sweeps them among new arrivals, and checks store, rows and files after each step.\n"
    "A failed check tells the seed of its lot: --files 250 --seed S repeats it.\n";
constexpr int kFilesOfALot = 250;

struct cFigures {
    int files = 0, listed = 0, removed = 0, copied = 0, acknowledged = 0, arrived = 0, swept = 0;
};

class cLot {
  public:
    cLot(std::uint32_t seed, cFigures& figures) : m_Damage(seed), m_Figures(figures) {}
    void Run(int count);

  private:
    void MakeFiles(int count);
    void Load(int count);
    void Sort();
    void Copy();
    void AcknowledgeSome();
    void Arrive();
    void Sweep();
    void AcknowledgeAll();
    RecordId AnyRow(const std::vector<RecordId>& rows) {
        return rows[static_cast<std::size_t>(m_Damage.Below(static_cast<int>(rows.size())))];
    }

    cDamage m_Damage;
    cFigures& m_Figures;
    testing::cTemporaryFolder m_Folder;
    cDamagedStation m_Station{m_Folder.Folder()};
};

void cLot::MakeFiles(int count) {
    for (const char* folder : {"Alarms", "LogFiles"})
        std::filesystem::create_directory(m_Folder.Path() / folder);
    // An alarm of number 0 counts as one without a file and leaves it behind at its next save; it is left out
    // here.
    for (int i = 1; i <= count; ++i) {
        m_Station.files.WriteFile(m_Station.store.FileName(i * 39999), m_Damage.AlarmFile(), false);
    }
    m_Figures.files += count;
}

void cLot::Load(int count) {
    m_Station.settings.m_MaxEvents = m_Damage.Chance(30) ? m_Damage.Below(count) : 0;
    m_Station.settings.m_MaxDays = m_Damage.Chance(30) ? 1 + m_Damage.Below(200000) : 0;
    m_Station.Load();
    const int listed = static_cast<int>(m_Station.store.m_Alarms.size());
    m_Figures.listed += listed;
    m_Figures.removed += count - listed;
    const bool limited = m_Station.settings.m_MaxEvents > 0 || m_Station.settings.m_MaxDays > 0;
    if (!limited && listed != count) throw std::runtime_error("a file is missing in the list");
}

void cLot::Sort() {
    for (int i = 0; i < 4; ++i) {
        m_Station.SortBy(m_Damage.Below(m_Station.list.ColumnCount()), m_Damage.Chance(50),
                         m_Damage.Chance(60));
        m_Station.list.View().grab();
        m_Station.Check();
    }
    m_Station.view.SetSortOrder();
}

void cLot::Copy() {
    m_Station.list.SelectAllRows();
    m_Station.Copy();
    m_Figures.copied += static_cast<int>(m_Station.list.SelectedRows().size());
    m_Station.list.ClearSelection();
    m_Station.Copy();
}

void cLot::AcknowledgeSome() {
    const auto rows = m_Station.list.Rows();
    for (int i = 0; i < 10 && !rows.empty(); ++i) m_Station.acknowledgement.AckAlarm(AnyRow(rows), nullptr);
    m_Station.Check();
    m_Station.CheckFiles();
}

void cLot::Arrive() {
    for (int i = 0; i < 10; ++i) {
        const auto rows = m_Station.list.Rows();
        if (!rows.empty()) m_Station.list.SelectAndShow(AnyRow(rows));
        const AlarmPtr alarm = m_Station.maker.Make([this](cVigrelRecieverAlarm& made) {
            if (m_Damage.Chance(30)) made.m_CreatedTime = m_Damage.Time();
        });
        m_Station.Take(alarm);
        // What a popup holds on to may be gone by now.
        if (m_Damage.Chance(50)) m_Station.acknowledgement.AckAlarm(0, alarm);
        m_Station.clock.AddSeconds(1);
        m_Station.Check();
        ++m_Figures.arrived;
    }
}

void cLot::Sweep() {
    m_Station.settings.m_MaxDays = 1 + m_Damage.Below(200);
    m_Station.clock.AddSeconds(m_Damage.Below(300) * 86400.0);
    m_Figures.swept += m_Station.store.SweepOldAlarms();
    m_Station.list.TakeOverRecords();
    m_Station.Check();
    m_Station.CheckFiles();
}

void cLot::AcknowledgeAll() {
    m_Station.acknowledgement.Menu_AckAll();
    m_Station.store.FinishSaves();
    for (const AlarmPtr& alarm : m_Station.store.m_Alarms) {
        if (alarm->m_Observed == False16) throw std::runtime_error("an alarm is not acknowledged");
    }
    m_Figures.acknowledged += static_cast<int>(m_Station.store.m_Alarms.size());
    m_Station.Check();
    m_Station.CheckFiles();
}

void cLot::Run(int count) {
    MakeFiles(count);
    ExportAlarms(m_Station.files, FindAlarmFolder(m_Station.files, m_Station.path), {},
                 [](std::size_t, std::size_t) {});
    Load(count);
    m_Station.Check();
    Sort();
    Copy();
    AcknowledgeSome();
    Arrive();
    AcknowledgeAll();
    Sweep();
    m_Station.list.View().grab();
}

int Option(int argc, char** argv, const std::string& name, int value) {
    for (int i = 1; i + 1 < argc; i += 2) {
        if (argv[i] == name) value = ToInt32(Val(argv[i + 1]));
    }
    return value;
}

// A text or a date that it can't show is no reason for the toolkit to complain.
void ExpectNoWarnings(testing::cHeardWarnings& heard) {
    const std::vector<std::string> warnings = heard.Take();
    if (!warnings.empty()) throw std::runtime_error("the toolkit warns: " + warnings.front());
}

int Run(int argc, char** argv, testing::cHeardWarnings& heard) {
    if (argc % 2 == 0) return std::fputs(kHelp, stdout), 2;
    const int files = Option(argc, argv, "--files", 100000);
    auto seed = static_cast<std::uint32_t>(Option(argc, argv, "--seed", 1));
    const auto start = std::chrono::steady_clock::now();
    cFigures figures;
    for (int done = 0; done < files; done += kFilesOfALot, ++seed) {
        try {
            cLot(seed, figures).Run(std::min(kFilesOfALot, files - done));
            ExpectNoWarnings(heard);
        } catch (const std::exception& failure) {
            std::printf("seed %u: %s\n", seed, failure.what());
            return 1;
        }
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::printf(
        "%d damaged files: %d listed, %d removed by the limits at the start, %d rows copied, %d arrivals,\n"
        "%d swept by age, %d acknowledged; no fault in %.0f s\n",
        figures.files, figures.listed, figures.removed, figures.copied, figures.arrived, figures.swept,
        figures.acknowledged, seconds.count());
    return 0;
}

}  // namespace
}  // namespace vigrel::campaign

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    vigrel::testing::cHeardWarnings heard;
    const QApplication application(argc, argv);
    return vigrel::campaign::Run(argc, argv, heard);
}
