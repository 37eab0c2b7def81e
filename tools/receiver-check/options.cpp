#include "receiver-check/options.h"

#include <string_view>

#include "tool_support/options.h"

namespace vigrel {
namespace {

constexpr std::string_view kHelp =
    R"(vigrel-receiver-check reads the application folder of an alarm receiver as the receiver would, and
tells what is wrong or odd in it. It never changes anything; the station may run meanwhile.

Usage:
  vigrel-receiver-check [--json] [--files-only] FOLDER
  vigrel-receiver-check --show-texts [--files-only] FOLDER

  --json         print a JSON object for scripts
  --show-texts   print what popups and the printer would show for a sample alarm of each category, and
                 how long the sounds are, in place of findings
  --files-only   don't look at this machine: neither at port, printer and sounds nor at the rights of the
                 user
  --version      print the version

Run it as the user whom the station runs as: the rights that are tested are yours.

Each finding is one line: file, line, severity, section and key, what is the matter, and in brackets
the name of this kind of finding, which stays the same in later versions.
  error     the station doesn't start or receive, or alarms stay unseen, unheard or unsupervised
  warning   a setting doesn't do what it says
  remark    worth a look; may be meant

Exit code: 0 nothing found, 1 remarks and warnings only, 2 errors, 3 the folder can't be read or the
command line is wrong.

Examples:
  vigrel-receiver-check ~/.local/share/VigrelReceiver
  vigrel-receiver-check --json /srv/station2 > station2.json
  vigrel-receiver-check --files-only ./new-station
  sudo -u alarm vigrel-receiver-check /home/alarm/.local/share/VigrelReceiver
)";

}  // namespace

cCheckOptions ReadCheckOptions(const std::vector<std::string>& words) {
    cCheckOptions options;
    const auto setFolder = [&options](const std::string& path) {
        if (!options.folder.empty()) RefuseOption("one folder at a time can be checked");
        options.folder = path;
    };
    ReadOptionWords(words, {{{"--help", &options.help},
                             {"-h", &options.help},
                             {"--json", &options.json},
                             {"--show-texts", &options.showTexts},
                             {"--version", &options.version},
                             {"--files-only", &options.filesOnly}},
                            {},
                            setFolder,
                            {}});
    if (options.showTexts && options.json) RefuseOption("--show-texts is for people and has no JSON");
    if (options.folder.empty() && !options.help && !options.version) RefuseOption("no folder was named");
    return options;
}

std::string CheckHelpText() {
    return std::string(kHelp);
}

}  // namespace vigrel
