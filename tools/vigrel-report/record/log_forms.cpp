#include "vigrel-report/record/log_forms.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vigrel::report {
namespace {

constexpr std::array<std::string_view, 4> kStates = {"Inactive - ", "Active - ", "Acked - ", "Message - "};

// Empty for a number that the language's file lacks.
std::string TextOrNothing(const cTexts& texts, std::int32_t id) {
    const std::string text = texts.GetText(id);
    return text.starts_with("*** ") ? std::string() : text;
}

std::string Around(const std::string& before, const std::string& text, const std::string& behind) {
    return text.empty() ? text : before + text + behind;
}

bool Begins(std::string_view text, const std::string& phrase) {
    return !phrase.empty() && text.starts_with(phrase);
}

bool Ends(std::string_view text, const std::string& phrase) {
    return !phrase.empty() && text.ends_with(phrase);
}

bool Is(std::string_view text, const std::string& phrase) {
    return !phrase.empty() && text == phrase;
}

std::size_t Find(std::string_view text, const std::string& phrase) {
    return phrase.empty() ? std::string_view::npos : text.find(phrase);
}

// A number that is all of a text.
std::optional<std::int64_t> WholeNumber(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool all = error == std::errc() && end == text.data() + text.size() && number >= 0;
    return all ? std::optional(number) : std::nullopt;
}

eLine WholeLine(const cLogPhrases& phrases, std::string_view text) {
    if (Is(text, phrases.start)) return eLine::Start;
    if (Is(text, phrases.started)) return eLine::Started;
    if (Is(text, phrases.endBySession)) return eLine::EndBySession;
    if (Is(text, phrases.endByOperator)) return eLine::EndByOperator;
    if (Is(text, phrases.soundStopped) || Is(text, phrases.noLight)) return eLine::Known;
    return eLine::Unknown;
}

// A line about an alarm, which ends it.
cLogLine AlarmBehind(const cLogPhrases& phrases, std::string_view text) {
    const std::array<std::pair<const std::string*, eLine>, 4> beginnings = {
        {{&phrases.acknowledged, eLine::Acknowledged},
         {&phrases.popupOpened, eLine::PopupOpened},
         {&phrases.popupClosed, eLine::PopupClosed},
         {&phrases.printFailed, eLine::PrintFailed}}};
    for (const auto& [phrase, kind] : beginnings) {
        if (Begins(text, *phrase)) return {kind, {}, text.substr(phrase->size()), 0};
    }
    return {};
}

// A sender's name and what came from it. The words that come first count: a text that a sender chose can hold
// all words there are.
cLogLine SenderInFront(const cLogPhrases& phrases, std::string_view text) {
    const std::size_t alarm = Find(text, phrases.alarm), message = Find(text, phrases.message);
    if (alarm < message) {
        return {eLine::Alarm, text.substr(0, alarm), text.substr(alarm + phrases.alarm.size()), 0};
    }
    if (message != std::string_view::npos) return {eLine::Message, text.substr(0, message), {}, 0};
    return {};
}

cLogLine EndingLine(const cLogPhrases& phrases, std::string_view text) {
    const std::array<std::pair<const std::string*, eLine>, 3> senders = {
        {{&phrases.keepAlive, eLine::KeepAlive},
         {&phrases.unknownSender, eLine::UnknownSender},
         {&phrases.unsupervised, eLine::SenderRow}}};
    for (const auto& [phrase, kind] : senders) {
        if (Ends(text, *phrase)) return {kind, text.substr(0, text.size() - phrase->size()), {}, 0};
    }
    for (const std::string* phrase : {&phrases.removed, &phrases.loaded}) {
        if (!Ends(text, *phrase)) continue;
        const auto number = WholeNumber(text.substr(0, text.size() - phrase->size()));
        if (number) return {phrase == &phrases.removed ? eLine::Removed : eLine::Known, {}, {}, *number};
    }
    return {};
}

cLogLine SupervisedRow(const cLogPhrases& phrases, std::string_view text) {
    if (!Ends(text, phrases.minutes)) return {};
    const std::size_t middle =
        phrases.supervised.empty() ? std::string_view::npos : text.rfind(phrases.supervised);
    if (middle == std::string_view::npos) return {};
    const std::size_t begin = middle + phrases.supervised.size();
    const auto minutes = WholeNumber(text.substr(begin, text.size() - phrases.minutes.size() - begin));
    if (!minutes) return {};
    return {eLine::SenderRow, text.substr(0, middle), {}, *minutes};
}

// Refused lines that the log counts in place of writing them: "... 7 more like this".
bool IsCount(const cLogPhrases& phrases, std::string_view text) {
    constexpr std::string_view kDots = "... ";
    if (!Ends(text, phrases.moreAlike) || !text.starts_with(kDots)) return false;
    text.remove_suffix(phrases.moreAlike.size());
    return text.size() > kDots.size() && WholeNumber(text.substr(kDots.size()));
}

// What a station meets in its surroundings.
bool IsNotice(const cLogPhrases& phrases, std::string_view text) {
    const auto begins = [&](const std::string& notice) { return Begins(text, notice); };
    if (std::any_of(phrases.notices.begin(), phrases.notices.end(), begins)) return true;
    if (text.starts_with("Alarms\\")) return Ends(text, phrases.noAlarmFile);
    const std::size_t count = Find(text, phrases.unreadable);
    return count != std::string_view::npos && WholeNumber(text.substr(0, count));
}

bool IsOther(const cLogPhrases& phrases, std::string_view text) {
    return IsCount(phrases, text) || IsNotice(phrases, text) || Begins(text, phrases.port) ||
           Begins(text, phrases.light) || Begins(text, phrases.lightLibrary) || Begins(text, phrases.deleted);
}

cLogLine ReadBy(const cLogPhrases& phrases, std::string_view text) {
    if (const eLine kind = WholeLine(phrases, text); kind != eLine::Unknown) return {kind, {}, {}, 0};
    for (const auto read : {AlarmBehind, SenderInFront, EndingLine, SupervisedRow}) {
        if (const cLogLine line = read(phrases, text); line.kind != eLine::Unknown) return line;
    }
    return {IsOther(phrases, text) ? eLine::Known : eLine::Unknown, {}, {}, 0};
}

// With these the editor begins its lines about files of definitions, in the log of the same folder.
constexpr eText kOfDefinitions[] = {TextUnknownVersion,   TextReceiverUpgraded,   TextProfileUpgraded,
                                    TextReceiverRemoved,  TextReceiverNotRemoved, TextReceiverNotLoaded,
                                    TextReceiverNotSaved, TextProfileNotSaved,    TextProfileRemoval,
                                    TextProfileNotLoaded};

// The line with which every start begins.
bool IsRuler(std::string_view text) {
    return text.size() == 120 && text.find_first_not_of('-') == std::string_view::npos;
}

}  // namespace

cLogPhrases PhrasesOf(const cTexts& texts) {
    const auto text = [&](eText id, const char* before = "", const char* behind = "") {
        return Around(before, TextOrNothing(texts, id), behind);
    };
    cLogPhrases p;
    p.start = text(TextProgramStart);
    p.started = text(TextStartFinished);
    p.endBySession = text(TextEndBySession);
    p.endByOperator = text(TextEndByOperator);
    p.acknowledged = text(TextAcknowledged, "", " ");
    p.popupOpened = text(TextPopupOpened, "", " ");
    p.popupClosed = text(TextPopupClosed, "", " ");
    p.printFailed = text(TextPrintFailed, "", " ");
    p.port = text(TextPortOpen, "", " ");
    p.light = text(TextLightFound, "", " (");
    p.lightLibrary = text(TextLightLibrary, "", " ");
    p.deleted = text(TextLogDeleted, "", " ");
    p.soundStopped = text(TextSoundStopped);
    p.noLight = text(TextNoLight);
    p.alarm = text(TextAlarmReceived, " ", " ");
    p.message = text(TextMessageReceived, " ", " -> ");
    p.keepAlive = text(TextKeepAlive, " ");
    p.unknownSender = text(TextUnknownSender);
    p.removed = text(TextAlarmsRemoved, " ");
    p.loaded = text(TextAlarmsLoaded, " ");
    p.unsupervised = text(TextNotSupervised, " - ");
    p.moreAlike = text(TextMoreAlike, " ");
    p.supervised = text(TextSupervised, " - ", " ");
    p.minutes = text(TextMinutes, " ");
    p.notices = {text(TextTextsUnreadable), text(TextFolderNotLocked), text(TextFolderUnreadable),
                 text(TextNoTray),          text(TextTrayGone),        text(TextDisplayGone)};
    for (const eText id : kOfDefinitions) p.notices.push_back(text(id, "", " "));
    p.noAlarmFile = text(TextNoAlarmFile, " ");
    p.unreadable = text(TextAlarmFilesUnreadable, " ", " ");
    p.lost = text(TextSenderLost, " - ", " ");
    p.neverHeard = text(TextSenderNeverHeard, " - ");
    return p;
}

cLogForms::cLogForms(std::vector<cLogPhrases> languages) : m_Languages(std::move(languages)) {}

cLogLine cLogForms::Read(std::string_view text) {
    if (IsRuler(text)) return {eLine::Known, {}, {}, 0};
    for (std::size_t i = 0; i < m_Languages.size(); ++i) {
        const std::size_t language = (m_Last + i) % m_Languages.size();
        const cLogLine line = ReadBy(m_Languages[language], text);
        if (line.kind == eLine::Unknown) continue;
        m_Last = language;
        return line;
    }
    return {text.starts_with(kTextFile) ? eLine::Known : eLine::Unknown, {}, {}, 0};
}

std::string_view cLogForms::LostSender(std::string_view text) const {
    for (const cLogPhrases& phrases : m_Languages) {
        if (Ends(text, phrases.neverHeard)) return text.substr(0, text.size() - phrases.neverHeard.size());
        const std::size_t lost = Find(text, phrases.lost);
        if (lost != std::string_view::npos) return text.substr(0, lost);
    }
    return {};
}

std::optional<cStatedAlarm> SplitAlarm(std::string_view alarm) {
    if (!alarm.ends_with(')')) return std::nullopt;
    for (std::size_t state = 0; state < kStates.size(); ++state) {
        if (!alarm.starts_with(kStates[state])) continue;
        return cStatedAlarm{static_cast<std::int8_t>(state), alarm.substr(kStates[state].size())};
    }
    return std::nullopt;
}

}  // namespace vigrel::report
