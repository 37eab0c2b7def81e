#include "vigrel-report/page/document.h"

namespace vigrel::report {
namespace {

constexpr std::size_t kSentences = 3, kRecommendations = 6;
constexpr double kMuch = 0.1;

// What could be said, and how much it matters. Of equal weight, what was added first.
class cChoice {
  public:
    void Add(int weight, std::string text) { m_Choices.push_back({weight, std::move(text)}); }
    std::vector<std::string> Best(std::size_t count) {
        std::stable_sort(m_Choices.begin(), m_Choices.end(),
                         [](const cOne& a, const cOne& b) { return a.weight > b.weight; });
        std::vector<std::string> best;
        for (std::size_t i = 0; i < std::min(count, m_Choices.size()); ++i) best.push_back(m_Choices[i].text);
        return best;
    }

  private:
    struct cOne {
        int weight;
        std::string text;
    };
    std::vector<cOne> m_Choices;
};

// The sender that was longest without contact.
struct cWorstSender {
    std::string name;
    Seconds without = 0;
};
cWorstSender WorstSender(const cReport& report) {
    cWorstSender worst;
    for (const cStationFigures& station : report.figures.stations) {
        for (const cSenderFigures& sender : station.senders) {
            if (sender.without <= worst.without) continue;
            worst = {NameText(report.names.SenderName(sender.sender)), sender.without};
        }
    }
    return worst;
}

bool Watches(const cSenderFigures& sender) {
    return sender.lost > 0 || sender.minutes.value_or(0) > 0;
}

// The one that was longest without contact to any station that watches it: its alarms came nowhere.
cWorstSender WorstUnheardSender(const cReport& report) {
    std::map<std::uint32_t, Spans> unheard;
    for (const cStationFigures& station : report.figures.stations) {
        for (const cSenderFigures& sender : station.senders) {
            if (!Watches(sender)) continue;
            const auto [known, isNew] = unheard.emplace(sender.sender, sender.losses);
            if (!isNew) known->second = InBoth(known->second, sender.losses);
        }
    }
    cWorstSender worst;
    for (const auto& [sender, losses] : unheard) {
        if (TotalLength(losses) <= worst.without) continue;
        worst = {NameText(report.names.SenderName(sender)), TotalLength(losses)};
    }
    return worst;
}

// When no station ran.
Seconds AllDown(const cReport& report) {
    Spans down = {report.figures.period};
    for (const cStationFigures& station : report.figures.stations) down = InBoth(down, station.down);
    return TotalLength(down);
}

std::string DownText(const cReport& report, const cForms& forms, Seconds down) {
    const bool one = report.figures.stations.size() == 1;
    return forms.Say(one ? eWord::SayDown : eWord::SayNoneRan, {forms.Duration(static_cast<double>(down))});
}

Seconds LongestDown(const cReport& report) {
    Seconds down = 0;
    for (const cStationFigures& station : report.figures.stations) down = std::max(down, station.notRunning);
    return down;
}

double TopShare(const cReport& report) {
    const cFigures& figures = report.figures;
    if (figures.sources.ranking.empty() || figures.load.activations == 0) return 0;
    return static_cast<double>(figures.sources.ranking[0].activations) /
           static_cast<double>(figures.load.activations);
}

bool HasManyStale(const cFigures& figures) {
    return static_cast<double>(figures.nuisance.mostStale) >= LimitOf(figures, eFigure::Stale).value;
}

// What kept alarms from coming or from being seen.
void AddSafety(cChoice& choice, const cReport& report, const cForms& forms) {
    const cFigures& figures = report.figures;
    const Seconds down = AllDown(report);
    if (down > 0) choice.Add(down >= 10 * kMinute ? 90 : 35, DownText(report, forms, down));
    const cWorstSender sender = WorstUnheardSender(report);
    if (sender.without > 0) {
        choice.Add(85, forms.Say(eWord::SayLost,
                                 {sender.name, forms.Duration(static_cast<double>(sender.without))}));
    }
    if (figures.answers.all.never > 0) {
        choice.Add(50, forms.Say(eWord::SayUnanswered, {forms.Count(figures.answers.all.never)}));
    }
    const Seconds gap = figures.period.Length() - figures.load.observed - down;
    if (gap > figures.period.Length() / 10) {
        choice.Add(70, forms.Say(eWord::SayGap, {forms.Duration(static_cast<double>(gap))}));
    } else if (LongestDown(report) == 0 && figures.unlogged == 0) {
        choice.Add(10, forms.Say(eWord::SayRan));
    }
}

// A record of hours tells nothing of a day.
void AddRate(cChoice& choice, const cFigures& figures, const cForms& forms) {
    const cLoad& load = figures.load;
    const bool byDay = load.observed >= kDay;
    const double rate = byDay ? load.perDay : load.perHour;
    const double most = LimitOf(figures, byDay ? eFigure::RateDay : eFigure::RateHour).value;
    const std::string shown = forms.Number(rate, rate < 10 ? 1 : 0);
    if (rate > most) {
        choice.Add(80, forms.Say(byDay ? eWord::SayBusy : eWord::SayBusyHours, {shown, forms.Number(most)}));
    } else {
        choice.Add(40, forms.Say(byDay ? eWord::SayCalm : eWord::SayCalmHours, {shown}));
    }
}

void AddLoad(cChoice& choice, const cReport& report, const cForms& forms) {
    const cLoad& load = report.figures.load;
    if (load.activations == 0) {
        choice.Add(60, forms.Say(eWord::SayNoAlarm));
        return;
    }
    AddRate(choice, report.figures, forms);
    if (load.floods.empty()) {
        choice.Add(30, forms.Say(eWord::SayNoFlood, {forms.Count(load.peak)}));
        return;
    }
    double flooded = 0;
    for (const cFlood& flood : load.floods) flooded += static_cast<double>(flood.span.Length());
    choice.Add(load.floodShare < LimitOf(report.figures, eFigure::FloodShare).value ? 65 : 75,
               forms.Say(eWord::SayFlood, {forms.Count(load.floods.size()), forms.Duration(flooded),
                                           forms.Count(load.peak), forms.Time(load.peakAt)}));
}

void AddSources(cChoice& choice, const cReport& report, const cForms& forms) {
    const cFigures& figures = report.figures;
    const double top = TopShare(report);
    if (top >= kMuch) {
        choice.Add(
            60, forms.Say(eWord::SaySource,
                          {SourceText(report.names, figures.sources.ranking[0].source), forms.Percent(top)}));
    }
    if (HasManyStale(figures)) {
        choice.Add(55, forms.Say(eWord::SayStale, {forms.Count(figures.nuisance.mostStale)}));
    }
    const cAnswerTimes& times = figures.answers.all;
    if (times.count > 0) {
        choice.Add(20, forms.Say(eWord::SayAnswered, {forms.Duration(times.median),
                                                      forms.Duration(static_cast<double>(times.ninetieth))}));
    }
}

void AddRepairs(cChoice& choice, const cReport& report, const cForms& forms) {
    const cFigures& figures = report.figures;
    const double top = TopShare(report);
    if (top >= kMuch) {
        choice.Add(
            70, forms.Say(eWord::DoSource,
                          {SourceText(report.names, figures.sources.ranking[0].source), forms.Percent(top)}));
    } else if (figures.sources.ranking.size() > kTop &&
               figures.sources.topTenShare > LimitOf(figures, eFigure::TopTen).value) {
        choice.Add(60, forms.Say(eWord::DoTopTen, {forms.Percent(figures.sources.topTenShare)}));
    }
    const cNuisance& nuisance = figures.nuisance;
    if (!nuisance.chattering.empty()) {
        choice.Add(65, forms.Say(eWord::DoChattering, {forms.Count(nuisance.chattering.size())}));
    }
    if (nuisance.fleetingActivations > 0) {
        choice.Add(40, forms.Say(eWord::DoFleeting, {forms.Count(nuisance.fleetingActivations)}));
    }
    if (HasManyStale(figures)) choice.Add(55, forms.Say(eWord::DoStale));
    if (figures.load.floodShare >= LimitOf(figures, eFigure::FloodShare).value)
        choice.Add(58, forms.Say(eWord::DoFlood));
}

void AddCare(cChoice& choice, const cReport& report, const cForms& forms) {
    const cFigures& figures = report.figures;
    if (LongestDown(report) >= 10 * kMinute) choice.Add(90, forms.Say(eWord::DoStation));
    const cWorstSender sender = WorstSender(report);
    if (sender.without > 0) choice.Add(85, forms.Say(eWord::DoSender, {sender.name}));
    if (figures.answers.all.never > 0) {
        choice.Add(50, forms.Say(eWord::DoUnanswered, {forms.Count(figures.answers.all.never)}));
    }
    std::size_t prints = 0;
    for (const cStationFigures& station : figures.stations) prints += station.failedPrints;
    if (prints > 0) choice.Add(75, forms.Say(eWord::DoPrinter, {forms.Count(prints)}));
    for (const cJudged& line : Judge(figures, nullptr)) {
        const bool priority = line.figure == eFigure::HighShare || line.figure == eFigure::MediumShare;
        if (!priority || line.verdict != eVerdict::Over) continue;
        choice.Add(45, forms.Say(eWord::DoPriority));
        break;
    }
}

}  // namespace

std::vector<std::string> MakeSentences(const cReport& report, const cForms& forms) {
    cChoice choice;
    if (report.figures.load.observed == 0) {
        choice.Add(100, forms.Say(eWord::SayNothingKnown));
        const Seconds down = AllDown(report);
        if (down > 0) choice.Add(90, DownText(report, forms, down));
        return choice.Best(kSentences);
    }
    AddSafety(choice, report, forms);
    AddLoad(choice, report, forms);
    AddSources(choice, report, forms);
    return choice.Best(kSentences);
}

std::vector<std::string> MakeRecommendations(const cReport& report, const cForms& forms) {
    cChoice choice;
    AddRepairs(choice, report, forms);
    AddCare(choice, report, forms);
    std::vector<std::string> best = choice.Best(kRecommendations);
    if (best.empty() && report.figures.load.observed > 0) best.push_back(forms.Say(eWord::DoNothing));
    return best;
}

}  // namespace vigrel::report
