// Somebody who presses keys and buttons of the editor's pages at random, and takes it all back. Run it under
// sanitizers.

#include <chrono>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "campaigns/monkey/session.h"
#include "common/numbers.h"
#include "support/heard_warnings.h"
#include "windows/application.h"

namespace vigrel::campaign {
namespace {

constexpr const char* kHelp =
    "monkey --page PAGE [--sessions N] [--seed S] [--actions A] [--others 1]\n\n"
    "Opens a page of the editor N (1000) times, presses A (40) buttons and keys at random, undoes all of it, "
    "does\n"
    "it again and undoes it again: the content has to be the first one, byte for byte. PAGE is schedule,\n"
    "calendar, colours, holidays, receivers or profiles. A failure tells its seed: --sessions 1 --seed S "
    "repeats it. With --others 1 another program changes, damages, removes and adds files of the page\n"
    "meanwhile: nothing that it saved may be lost without a question about that file.\n";

std::string TextOption(int argc, char** argv, const std::string& name, const std::string& otherwise) {
    for (int i = 1; i + 1 < argc; i += 2) {
        if (argv[i] == name) return argv[i + 1];
    }
    return otherwise;
}

int Option(int argc, char** argv, const std::string& name, int otherwise) {
    return ToInt32(Val(TextOption(argc, argv, name, std::to_string(otherwise))));
}

void ExpectNoWarnings(testing::cHeardWarnings& heard) {
    const std::vector<std::string> warnings = heard.Take();
    if (!warnings.empty()) throw std::runtime_error("the toolkit warns: " + warnings.front());
}

int Run(int argc, char** argv, testing::cHeardWarnings& heard) {
    const std::string page = TextOption(argc, argv, "--page", "");
    if (argc % 2 == 0 || page.empty()) return std::fputs(kHelp, stdout), 2;
    const int sessions = Option(argc, argv, "--sessions", 1000);
    const bool hasOthers = Option(argc, argv, "--others", 0) == 1;
    const int actions = Option(argc, argv, "--actions", 40);
    auto seed = static_cast<std::uint32_t>(Option(argc, argv, "--seed", 1));
    const auto start = std::chrono::steady_clock::now();
    cFigures figures;
    for (int done = 0; done < sessions; ++done, ++seed) {
        try {
            cSession session(page, seed, figures);
            hasOthers ? session.RunWithOthers(actions) : session.Run(actions);
            ExpectNoWarnings(heard);
        } catch (const std::exception& failure) {
            std::printf("%s, seed %u: %s\n", page.c_str(), seed, failure.what());
            return 1;
        }
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::printf(
        "%s: %d sessions, %d presses, %d keys, %d entries, %d boxes and menus, %d steps, the content "
        "changed in %d, %d works of others, %d questions; no fault in %.0f s\n",
        page.c_str(), figures.sessions, figures.presses, figures.keys, figures.entries, figures.boxes,
        figures.steps, figures.changed, figures.theirs, figures.questions, seconds.count());
    return 0;
}

}  // namespace
}  // namespace vigrel::campaign

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    vigrel::testing::cHeardWarnings heard;
    const vigrel::cApplication application(argc, argv);
    return vigrel::campaign::Run(argc, argv, heard);
}
