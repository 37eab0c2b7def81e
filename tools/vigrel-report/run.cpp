#include "vigrel-report/run.h"

#include "common/setting_keys.h"
#include "vigrel-report/page/writers.h"

namespace vigrel::report {
namespace {

eLanguage LanguageOf(const cOptions& options, const cFileReader& files, const std::string& folder) {
    if (options.language) return *options.language;
    const cIniReader ini(files, folder);
    return LanguageFromNumber(cSettingReader(ini, "General").Text("Language")).value_or(eLanguage::English);
}

}  // namespace

cOutput MakeReport(const cOptions& options, const cSurroundings& surroundings) {
    const cTimeZone& zone = surroundings.zone;
    const cPeriods periods = FindPeriods(options, surroundings.now, zone);
    cAlarmNames names;
    std::vector<cStationRecord> stations;
    for (const std::string& folder : options.folders) {
        stations.push_back(ReadStation(surroundings.files, folder, surroundings.installedPhrases, zone, names,
                                       surroundings.onFile));
    }
    const cForms forms(LanguageOf(options, surroundings.files, stations[0].folder), zone);
    const cPlant plant = MakePlant(std::move(stations), names);
    const cFigures figures = Measure(plant, names, options.settings, periods.period, zone);
    const cFigures before = Measure(plant, names, options.settings, periods.before, zone);
    const cReport report{figures, &before, plant, names, options.settings, surroundings.now};
    const cDocument document = MakeDocument(report, forms);
    cOutput output;
    if (!options.page.empty()) output.page = HtmlPage(document, report, forms);
    if (options.json) output.json = JsonReport(document, report, zone);
    if (!options.csvFolder.empty()) output.tables = CsvFiles(document, forms);
    if (options.page.empty() && !options.json && options.csvFolder.empty())
        output.text = ShortText(document, forms);
    return output;
}

}  // namespace vigrel::report
