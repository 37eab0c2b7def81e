#include "adapters/qt/qt_locale.h"

#include <algorithm>

#include "adapters/qt/qt_text.h"
#include "common/text.h"

namespace vigrel {
namespace {

// What stands for itself in a pattern without a quote.
bool StandsForItself(QChar c) {
    return c.isSpace() || QStringLiteral("-./:,()").contains(c);
}

QString Quoted(const QString& literal) {
    if (std::all_of(literal.begin(), literal.end(), StandsForItself)) return literal;
    return "\"" + literal + "\"";
}

// A quoted literal from its opening quote on; the position is moved behind it. Two quotes are one.
QString TakeLiteral(const QString& format, qsizetype& position) {
    QString literal;
    for (++position; position < format.size(); ++position) {
        if (format[position] != '\'') {
            literal += format[position];
        } else if (position + 1 < format.size() && format[position + 1] == '\'') {
            literal += format[position++];
        } else {
            ++position;
            break;
        }
    }
    return literal.isEmpty() ? QString("'") : literal;
}

QString TakeRun(const QString& format, qsizetype& position) {
    const qsizetype start = position;
    while (position < format.size() && format[position] == format[start]) ++position;
    return format.mid(start, position - start);
}

// A run of one format letter as the pattern has it.
QString PatternOfRun(const QString& run) {
    switch (run[0].unicode()) {
        case 'm':
            return QString(run.size(), 'n');
        case 'z':
        case 't':
            return {};
        default:
            return run.toLower();
    }
}

QString TakeMarker(const QString& format, qsizetype& position) {
    ++position;
    if (position < format.size() && format[position].toLower() == 'p') ++position;
    return "AMPM";
}

// The toolkit's formats mark the zone by "t", some of them in brackets.
void DropEmptyBrackets(QString& pattern) {
    pattern.remove("()");
    pattern = pattern.trimmed();
}

// The first character of a pattern that belongs to no part; the default when that says nothing.
void TakeSeparator(std::string& separator, const std::string& pattern) {
    const std::size_t found = pattern.find_first_of("-./:,");
    if (found != std::string::npos) separator = pattern[found];
}

// The names of days or months, or the given ones when the code page can't show them.
template <std::size_t N, class Name>
void TakeNames(std::array<std::string, N>& names, Name&& name) {
    std::array<std::string, N> own;
    for (std::size_t i = 0; i < N; ++i) own[i] = FromQString(name(static_cast<int>(i)));
    const auto isShown = [](const std::string& text) {
        return !text.empty() && text.find('?') == std::string::npos;
    };
    if (std::all_of(own.begin(), own.end(), isShown)) names = own;
}

void TakeAllNames(cLocaleForms& forms, const QLocale& locale) {
    // The toolkit counts Monday 1 to Sunday 7, and months from 1.
    const auto day = [](int i) { return i == 0 ? 7 : i; };
    TakeNames(forms.dayNames, [&](int i) { return locale.dayName(day(i), QLocale::LongFormat); });
    TakeNames(forms.shortDayNames, [&](int i) { return locale.dayName(day(i), QLocale::ShortFormat); });
    TakeNames(forms.monthNames, [&](int i) { return locale.monthName(i + 1, QLocale::LongFormat); });
    TakeNames(forms.shortMonthNames, [&](int i) { return locale.monthName(i + 1, QLocale::ShortFormat); });
}

// The countries whose first week has at least four days in the year; in the others it is that of 1 January.
// The toolkit knows the first day of the week but not this rule.
bool WeekOneHasFourDays(QLocale::Territory territory) {
    // clang-format off
    static constexpr QLocale::Territory kTerritories[] = {
        QLocale::AlandIslands, QLocale::Andorra, QLocale::Austria, QLocale::Belgium, QLocale::Bulgaria,
        QLocale::Czechia, QLocale::Denmark, QLocale::Estonia, QLocale::FaroeIslands, QLocale::Finland,
        QLocale::France, QLocale::Germany, QLocale::Gibraltar, QLocale::Greece, QLocale::Guernsey,
        QLocale::Hungary, QLocale::Iceland, QLocale::Ireland, QLocale::IsleOfMan, QLocale::Italy,
        QLocale::Jersey, QLocale::Liechtenstein, QLocale::Lithuania, QLocale::Luxembourg, QLocale::Monaco,
        QLocale::Netherlands, QLocale::Norway, QLocale::Poland, QLocale::Portugal, QLocale::Russia,
        QLocale::SanMarino, QLocale::Slovakia, QLocale::Spain, QLocale::SvalbardAndJanMayen, QLocale::Sweden,
        QLocale::Switzerland, QLocale::UnitedKingdom, QLocale::VaticanCity};
    // clang-format on
    return std::find(std::begin(kTerritories), std::end(kTerritories), territory) != std::end(kTerritories);
}

void TakeWeekRules(cLocaleForms& forms, const QLocale& locale) {
    forms.firstDayOfWeek = locale.firstDayOfWeek() % 7 + 1;
    forms.firstWeekOfYear =
        WeekOneHasFourDays(locale.territory()) ? eFirstWeek::FirstFourDays : eFirstWeek::FirstOfJanuary;
}

// Takes what the code page can show, and leaves the text as it was otherwise.
void TakeShown(std::string& text, const std::string& own) {
    if (!own.empty() && own.find('?') == std::string::npos) text = own;
}

}  // namespace

std::string PatternFromFormat(const QString& format) {
    QString pattern;
    for (qsizetype position = 0; position < format.size();) {
        const QChar c = format[position];
        if (c == '\'') {
            pattern += Quoted(TakeLiteral(format, position));
        } else if (c.toLower() == 'a') {
            pattern += TakeMarker(format, position);
        } else if (QStringLiteral("dMyhHmszt").contains(c)) {
            pattern += PatternOfRun(TakeRun(format, position));
        } else {
            pattern += Quoted(format.mid(position++, 1));
        }
    }
    DropEmptyBrackets(pattern);
    return FromQString(pattern);
}

cLocaleForms cQtLocale::Forms() const {
    cLocaleForms forms;
    TakeShown(forms.shortDate, PatternFromFormat(m_Locale.dateFormat(QLocale::ShortFormat)));
    TakeShown(forms.longDate, PatternFromFormat(m_Locale.dateFormat(QLocale::LongFormat)));
    TakeShown(forms.longTime, PatternFromFormat(m_Locale.timeFormat(QLocale::LongFormat)));
    TakeSeparator(forms.dateSeparator, forms.shortDate);
    TakeSeparator(forms.timeSeparator, forms.longTime);
    TakeShown(forms.am, FromQString(m_Locale.amText()));
    TakeShown(forms.pm, FromQString(m_Locale.pmText()));
    TakeAllNames(forms, m_Locale);
    TakeWeekRules(forms, m_Locale);
    return forms;
}

std::string cQtLocale::EnglishLanguageName() const {
    if (m_Locale.language() == QLocale::C) return {};
    return FromQString(QLocale::languageToString(m_Locale.language()));
}
std::string cQtLocale::NativeLanguageName() const {
    // Of the language, not of the country's form of it: a station in Austria has the German texts.
    return FromQString(QLocale(m_Locale.language()).nativeLanguageName());
}
std::string cQtLocale::EnglishCountryName() const {
    if (m_Locale.territory() == QLocale::AnyTerritory) return {};
    return FromQString(QLocale::territoryToString(m_Locale.territory()));
}

}  // namespace vigrel
