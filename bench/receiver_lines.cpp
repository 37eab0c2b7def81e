#include "bench/receiver_lines.h"

#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QWindow>
#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <mutex>
#include <thread>

#include "bench/bare.h"
#include "bench/example_frame.h"
#include "bench/whole_receiver.h"
#include "link/record_decoder.h"
#include "receiver_ui/list/qt_report_list.h"
#include "signals/event_text_station.h"
#include "support/popup_station.h"
#include "support/qt_wait.h"
#include "vigrel-send/connection.h"

namespace vigrel::bench {
namespace {

using testing::RunEvents;
using testing::WaitUntil;

constexpr int kForever = 600'000;  // milliseconds
const std::string kColumns =
    "Columns=StateIcon,DateTime,StateText,t2,t0,t1,t3,Observed\r\nMaxEvents=0\r\nMaxDays=0\r\nPrinterPort="
    "0\r\n";

// --- acknowledging

struct cAcknowledged {
    double shown, written, standStill, bare;  // seconds, seconds, milliseconds, seconds
};

// What a station has stored has been on the disk for long; and ext4 without a journal passes over the inodes
// of files that were removed just before, one by one, whenever it makes a file.
void LetTheDiskRest(int alarms) {
    sync();
    RunEvents(std::min(alarms, 6000));
}

cAcknowledged AcknowledgeAll(int alarms) {
    cWholeReceiver whole(kColumns, alarms);
    if (!whole.Start()) throw std::runtime_error("the receiver does not start");
    RunEvents(300);
    cAcknowledged result{};
    const testing::cTemporaryFolder other;
    StoreAlarms(other.Path(), alarms);
    LetTheDiskRest(alarms);
    result.bare = Seconds([&] { ReplaceAllFiles(other.Path()); });
    LetTheDiskRest(alarms);
    QElapsedTimer timer;
    timer.start();
    whole.receiver.Menu_AckAll();
    whole.mainWindow.List().Redraw();
    whole.mainWindow.List().Rows();
    whole.mainWindow.List().View().repaint();
    result.shown = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    cStandStill standStill;
    WaitUntil([&] { return !whole.timerSave.Enabled(); }, kForever);
    result.standStill = standStill.Longest();
    result.written = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    return result;
}

// --- a burst

// When things happened to the alarms of a burst, in seconds since it began; one after the other.
struct cMoments {
    std::vector<double> sent, shown, popup, sound;
};

// Sends alarms from a thread of its own, each when the last one was answered and the pause is over.
class cSender {
  public:
    cSender(int port, int alarms, int pauseMilliseconds)
        : m_Thread([this, port, alarms, pauseMilliseconds] {
              send::cConnection connection("127.0.0.1", std::to_string(port), 60);
              for (int i = 0; i < alarms; ++i) {
                  const double now = Now();
                  {
                      const std::lock_guard lock(m_Mutex);
                      m_Sent.push_back(now);
                  }
                  connection.Send(kFrame);
                  if (connection.ReadReply().size() != 5) break;
                  if (pauseMilliseconds > 0)
                      std::this_thread::sleep_for(std::chrono::milliseconds(pauseMilliseconds));
              }
              m_Done = true;
          }) {}
    ~cSender() { m_Thread.join(); }
    bool Done() const { return m_Done; }
    std::vector<double> Sent() {
        const std::lock_guard lock(m_Mutex);
        return m_Sent;
    }
    static double Now() {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }

  private:
    std::mutex m_Mutex;
    std::vector<double> m_Sent;
    std::atomic<bool> m_Done{false};
    std::thread m_Thread;
};

// Notes when a row is painted for the first time, and when a popup shows.
class cScreenWatch : public QObject {
  public:
    explicit cScreenWatch(cWholeReceiver& whole) : m_Whole(whole) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object == m_Whole.mainWindow.List().View().viewport()) {
            const int rows = m_Whole.mainWindow.List().View().model()->rowCount();
            while (static_cast<int>(m_Painted.size()) < rows) m_Painted.push_back(cSender::Now());
        }
        if (event->type() == QEvent::Show && object->isWidgetType() &&
            object->objectName() == "Vigrel_Receiver_Popup") {
            m_Popups.push_back(cSender::Now());
        }
        return false;
    }
    std::vector<double> m_Painted, m_Popups;

  private:
    cWholeReceiver& m_Whole;
};

std::vector<double> Milliseconds(const std::vector<double>& from, const std::vector<double>& to) {
    std::vector<double> result;
    for (std::size_t i = 0; i < std::min(from.size(), to.size()); ++i)
        result.push_back((to[i] - from[i]) * 1e3);
    return result;
}

double StandStillOfBurst(int alarms) {
    cWholeReceiver whole(kColumns, 0);
    if (!whole.Start()) throw std::runtime_error("the receiver does not start");
    RunEvents(500);
    cStandStill standStill;
    cSender sender(whole.m_Port, alarms, 0);
    WaitUntil([&] { return sender.Done(); }, kForever);
    return standStill.Longest();
}

void PublishLatencies(int alarms) {
    cWholeReceiver whole(kColumns + "ViewPopupForm=1\r\nEventPopupFormat=[DATE] [TIME] [T0]\r\n", 0);
    if (!whole.Start()) throw std::runtime_error("the receiver does not start");
    whole.mainWindow.SetState(eWindowState::Normal);
    RunEvents(500);
    cScreenWatch watch(whole);
    cSender sender(whole.m_Port, alarms, 40);
    WaitUntil([&] { return sender.Done(); }, kForever);
    RunEvents(300);
    PublishLatency("from an alarm's last byte to its painted row",
                   Milliseconds(sender.Sent(), watch.m_Painted));
    PublishLatency("from an alarm's last byte to its popup", Milliseconds(sender.Sent(), watch.m_Popups));
}

// --- popups

bool Exposed(const QWidget& widget) {
    return widget.windowHandle() != nullptr && widget.windowHandle()->isExposed();
}

double OpenPopups(int count) {
    testing::cPopupStation station;
    station.m_Setting =
        testing::cPopupStation::Setting("BackColor_Active=200,0,0\nForeColor_Active=255,255,255\n");
    cOpenWindows windows;
    cPopupWidgetMaker maker(windows);
    cPopups popups(station.Services(windows, maker));
    const double seconds = Seconds([&] {
        for (int i = 0; i < count; ++i) {
            station.m_Clock.AddSeconds(1);
            popups.ShowPopup(station.Alarm("X"));
        }
        const auto& last = dynamic_cast<cPopupWidget&>(*windows.OpenWindows().back());
        WaitUntil([&] { return !maker.Stack().Waits() && Exposed(last); }, kForever);
    });
    popups.ClosePopups();
    RunEvents(1000);
    return seconds;
}

// As many windows with a picture and a text that can be scrolled and copied, each shown.
double OpenBareWindows(int count) {
    std::vector<std::unique_ptr<QWidget>> windows;
    const QPixmap icon = QIcon(":/icons/popup/1.svg").pixmap(32);
    const double seconds = Seconds([&] {
        for (int i = 0; i < count; ++i) {
            windows.push_back(std::make_unique<QWidget>());
            QWidget& window = *windows.back();
            window.setAttribute(Qt::WA_ShowWithoutActivating);
            window.setWindowFlag(Qt::WindowStaysOnTopHint);
            window.setWindowTitle("Title (Plant)");
            window.setWindowIcon(QIcon(icon));
            window.setGeometry(50 + i % 20 * 26, 50 + i % 20 * 26, 451, 84);
            auto* picture = new QLabel(&window);
            picture->setPixmap(icon);
            picture->setGeometry(6, 14, 32, 32);
            auto* text = new QPlainTextEdit("Alarm " + QString::number(i), &window);
            text->setReadOnly(true);
            text->setGeometry(45, 7, 400, 77);
            window.show();
        }
        WaitUntil([&] { return Exposed(*windows.back()); }, kForever);
    });
    windows.clear();
    RunEvents(1000);
    return seconds;
}

// --- sorting

double SortByText(int rows) {
    const cIconStrip icons;
    cQtReportList list(nullptr, icons);
    for (int column = 0; column < 8; ++column) list.AddColumn("Column", 120);
    list.OnItem = [](const RecordTag& tag, int column) {
        const int number = *static_cast<const int*>(tag.get());
        cReportItem item;
        if (column == 7) {
            item.value = 45'000.0 + number;
        } else {
            item.value = "Pump " + std::to_string(number % 10'007 * 7919 % 10'007) + " stopped";
        }
        return item;
    };
    list.View().resize(1000, 600);
    list.View().show();
    list.AddSortColumn(7, true);
    for (int row = 0; row < rows; ++row) list.AddRecord(std::make_shared<int>(row));
    list.TakeOverRecords();
    list.Rows();
    RunEvents(200);
    std::vector<double> seconds;
    for (int round = 0; round < 5; ++round) {
        seconds.push_back(Seconds([&] {
            for (const int column : {3, 7}) {
                list.ClearSortOrder();
                list.AddSortColumn(column, true);
                list.TakeOverRecords();
                list.Rows();
                list.View().repaint();
            }
        }));
    }
    return Median(seconds) * 1e3;
}

// --- texts

// Microseconds of the processor for one of many.
double ProcessorTime(int times, const std::function<void()>& step) {
    double least = 1e9;
    for (int round = 0; round < 5; ++round) {
        const std::clock_t begin = std::clock();
        for (int i = 0; i < times; ++i) step();
        least = std::min(least, 1e6 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / times);
    }
    return least;
}

// Keeps nothing, so that only the work in front of the disk is seen.
struct cForgetfulFiles : testing::cFakeFiles {
    void AppendFile(std::string_view, std::string_view) override {}
};

double DecodeRecord(int times) {
    cForgetfulFiles files;
    const cSystemClock clock;
    cIni ini(files, "C:\\App\\");
    cTexts texts(files, ini);
    cLog log(files, clock, texts, "C:\\App\\");
    cSettings settings;
    const cLocaleForms forms;
    const cCategorySettings categories;
    const cAlarmMaker maker(clock, categories);
    testing::cFakeMessageBox box;
    cSenderTable senders(
        {files, clock, maker, ini, texts, log, settings, forms, box, [](const AlarmPtr&) {}});
    cRecordDecoder decoder(
        {clock, maker, log, texts, senders, [](const AlarmPtr&) {}, [](std::string_view) {}});
    const std::string line = kFrame.substr(0, kFrame.size() - 1);
    return ProcessorTime(times, [&] { decoder.ProcessRecord(line); });
}

double ExpandTemplate(int times) {
    testing::cEventTextStation station;
    const cIniMoment moment(station.ini);
    return ProcessorTime(
        times, [&] { station.Expand("[SENDER] {ACTIVE?ALARM }{INACTIVE?ok }[T0] ([T2:0-9:10]) [OBJECT]"); });
}

double ReadKey(int times) {
    testing::cFakeFiles files;
    files.Put("C:\\App\\VigrelReceiver.INI",
              "[General]\r\nObject=Plant\r\n[CategoryTranslations]\r\nFire=Brand\r\n");
    const cIni ini(files, "C:\\App\\");
    const cIniMoment moment(ini);
    return ProcessorTime(times, [&] { ini.GetIniString("CategoryTranslations", "Technical", "Technical"); });
}

cLine Microseconds(const std::string& what, double figure, double target) {
    return {what, Number(figure, 2, "us"), "", figure, "us", target, true};
}

}  // namespace

std::vector<cLine> MeasureAcknowledging(const cSize& size) {
    std::vector<double> shown, written, standStill, bare, ratios;
    const int alarms = size.stored / 10;
    for (int round = 0; round < size.rounds; ++round) {
        const cAcknowledged result = AcknowledgeAll(alarms);
        shown.push_back(result.shown);
        written.push_back(result.written);
        standStill.push_back(result.standStill);
        bare.push_back(result.bare);
        ratios.push_back(result.written / result.bare);
    }
    const std::string all = "acknowledging all of " + std::to_string(alarms);
    return {{all + ": all files written", Number(Median(written), 2, "s"), Number(Median(bare), 2, "s"),
             Median(ratios), "", 1.5, true},
            {all + ": the list shows it", Number(Median(shown), 3, "s"), "", Median(shown), "s", 0.3, true},
            {all + ": longest stand-still while writing", Number(Median(standStill), 0, "ms"), "",
             Median(standStill), "ms", 50, true}};
}

std::vector<cLine> MeasureBurst(const cSize& size) {
    const int alarms = size.stored / 10;
    const char* before = std::getenv("TMPDIR");
    const std::string folder = before == nullptr ? "/tmp" : before;
    setenv("TMPDIR", "/dev/shm", 1);
    const double standStill = StandStillOfBurst(alarms);
    setenv("TMPDIR", folder.c_str(), 1);
    PublishLatencies(size.popups / 2);
    return {{"longest stand-still in a burst of " + std::to_string(alarms) + ", files in memory",
             Number(standStill, 0, "ms"), "", standStill, "ms", 50, true}};
}

std::vector<cLine> MeasurePopups(const cSize& size) {
    std::vector<double> seconds, bare, ratios;
    for (int round = 0; round < size.rounds; ++round) {
        bare.push_back(OpenBareWindows(size.popups));
        seconds.push_back(OpenPopups(size.popups));
        ratios.push_back(seconds.back() / bare.back());
    }
    return {{"opening " + std::to_string(size.popups) + " popups, against bare windows",
             Number(Median(seconds), 2, "s"), Number(Median(bare), 2, "s"), Median(ratios), "", 1.5, true}};
}

std::vector<cLine> MeasureSorting(const cSize& size) {
    const double milliseconds = SortByText(size.stored);
    return {{"sorting " + std::to_string(size.stored) + " rows by a text column and back",
             Number(milliseconds, 0, "ms"), "", milliseconds, "ms", 100, true}};
}

std::vector<cLine> MeasureTexts(const cSize& size) {
    const int times = size.alarms * 10;
    return {Microseconds("a typical template", ExpandTemplate(times), 2),
            Microseconds("a typical record, from line to alarm", DecodeRecord(times), 2),
            Microseconds("a key of an unchanged configuration", ReadKey(times), 2)};
}

}  // namespace vigrel::bench
