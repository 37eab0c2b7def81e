#include "e2e/definitions/editor_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

#include "e2e/windows/operator.h"
#include "schedule/calendar_geometry.h"
#include "schedule/schedule_geometry.h"

namespace vigrel::testing {
namespace {

constexpr const char* kTitle = "^Vigrel";  // in every language
constexpr const char* kErrors = "config/stderr.txt";

template <class Condition>
bool Eventually(Condition&& condition) {
    for (int tries = 0; tries < 200; ++tries) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return condition();
}

// The mouse and the keyboard of the display.
void Do(const std::string& steps) {
    const int result = std::system(("xdotool " + steps + " >/dev/null 2>&1").c_str());
    static_cast<void>(result);
}

std::string Text(cPixelPlace place) {
    return std::to_string(place.x) + " " + std::to_string(place.y);
}

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

// What the program meets when it starts, in its own process.
void cEditorProgram::TakeSurroundings() const {
    setenv("VIGREL_APPLICATION_PATH", m_Folder.Path().c_str(), 1);
    setenv("XDG_CONFIG_HOME", Path("config").c_str(), 1);
    // The toolkit asks for one, and for its owner alone.
    std::filesystem::permissions(m_Runtime.Path(), std::filesystem::perms::owner_all);
    setenv("XDG_RUNTIME_DIR", m_Runtime.Path().c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("QT_SCALE_FACTOR", std::to_string(m_Scale).c_str(), 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    dup2(open(Path(kErrors).c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666), STDERR_FILENO);
}

void cEditorProgram::Start(int zoom, const std::vector<std::string>& files) {
    m_Zoom = zoom;
    std::filesystem::create_directories(m_Folder.Path() / "config/Vigrel");
    std::ofstream(m_Folder.Path() / "config/Vigrel/VigrelDefinitions.ini")
        << "[General]\nZoom=" << zoom << "\n";
    m_Process = fork();
    if (m_Process == 0) {
        TakeSurroundings();
        std::vector<std::string> words{VIGREL_DEFINITIONS};
        words.insert(words.end(), files.begin(), files.end());
        std::vector<char*> arguments;
        arguments.reserve(words.size() + 1);
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    m_Window = FindWindow(m_Process, kTitle);
}

void cEditorProgram::StartScaled(int scale) {
    m_Scale = scale;
    Start(1);
}

cEditorProgram::~cEditorProgram() {
    if (m_Process > 0) {
        kill(m_Process, SIGKILL);
        waitpid(m_Process, nullptr, 0);
    }
    EXPECT_EQ(Bytes(kErrors), "");
}

int cEditorProgram::WaitForEnd() {
    int status = -1;
    if (!Eventually([&] { return waitpid(m_Process, &status, WNOHANG) == m_Process; })) return -1;
    m_Process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool cEditorProgram::HasTitle(const std::string& title) const {
    return Eventually([&] { return TitleOf(m_Window) == title; });
}

void cEditorProgram::Keys(const std::vector<std::string>& keys) const {
    Press(m_Window, keys);
}

void cEditorProgram::Type(const std::string& text) const {
    Do("type --delay 10 '" + text + "'");
}

bool cEditorProgram::EnterDialog(const std::string& title) {
    const std::string dialog = FindWindow(m_Process, title);
    if (dialog.empty()) return false;
    Do("windowactivate --sync " + dialog);
    return true;
}

// Return alone may only close the list of completions; the button's key accepts.
bool cEditorProgram::ChooseFile(const std::string& title, const std::string& path) {
    if (!EnterDialog(title)) return false;
    Type(path);
    Do(std::string("key alt+") + (title == "Open" ? "o" : "s"));
    return true;
}

std::string cEditorProgram::File(const std::string& name, std::size_t size) const {
    Eventually([&] {
        std::error_code error;
        return std::filesystem::file_size(Path(name), error) == size && !error;
    });
    return Content(Path(name));
}

std::string cEditorProgram::Bytes(const std::string& name) const {
    return Content(Path(name));
}

void cEditorProgram::Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
}

std::string cEditorProgram::OnlyFileIn(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Path(folder)))
        names.push_back(entry.path().filename().string());
    return names.size() == 1 ? names.front() : "";
}

bool cEditorProgram::BecomesEmpty(const std::string& folder) const {
    return Eventually([&] { return std::filesystem::is_empty(Path(folder)); });
}

// The uppermost line of an axis is the only long one of its grey.
bool cEditorProgram::FindAxis() {
    return Eventually([&] {
        const auto found = cScreenPicture().FindRun(0xDCDCDC, 80 * m_Zoom);
        if (found) m_Axis = *found;
        return found.has_value();
    });
}

cPixelPlace cEditorProgram::At(int row, int minute) const {
    return {m_Axis.x + minute / kMinutesPerUnit * m_Zoom + m_Zoom / 2,
            m_Axis.y + row * kRowHeight * m_Zoom + m_Zoom * 6};
}

// The uppermost line of a red band is the only one of its colour; the first row has a Sunday in every month.
bool cEditorProgram::FindGrid() {
    return Eventually([&] {
        const auto found = cScreenPicture().FindRun(0xFFC0C0, 14 * m_Zoom);
        if (found) m_FirstSunday = *found;
        return found.has_value();
    });
}

cPixelPlace cEditorProgram::Cell(int column, int row) const {
    return {m_FirstSunday.x + ((column - 6) * kCellWidth + kBoxWidth / 2) * m_Zoom,
            m_FirstSunday.y + (row * kCellHeight + kBoxHeight / 2) * m_Zoom};
}

void cEditorProgram::Drag(const std::vector<cPixelPlace>& places) const {
    std::string steps = "mousemove " + Text(places.front()) + " mousedown 1";
    for (const cPixelPlace& place : places) steps += " sleep 0.1 mousemove " + Text(place);
    Do(steps + " sleep 0.1 mouseup 1");
}

void cEditorProgram::RightClick(cPixelPlace place) const {
    Do("mousemove " + Text(place) + " click 3 sleep 0.3");
}

}  // namespace vigrel::testing
