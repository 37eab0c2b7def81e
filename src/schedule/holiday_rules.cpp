#include "schedule/holiday_rules.h"

#include <algorithm>
#include <array>

namespace vigrel {
namespace {

constexpr int kMonday = 0, kWednesday = 2, kFriday = 4, kSaturday = 5;

// Whit Monday gave way to the national day in 2005.
constexpr std::array kSweden{
    Fixed(1, 1, "Nyårsdagen"),
    Fixed(1, 6, "Trettondedag jul"),
    FromEaster(-2, "Långfredagen"),
    FromEaster(-1, "Påskafton").NameOnly(),
    FromEaster(0, "Påskdagen"),
    FromEaster(1, "Annandag påsk"),
    Fixed(5, 1, "Första maj"),
    FromEaster(39, "Kristi himmelsfärdsdag"),
    FromEaster(49, "Pingstdagen"),
    FromEaster(50, "Annandag pingst").Until(2004),
    Fixed(6, 6, "Sveriges nationaldag").NameOnly().Until(2004),
    Fixed(6, 6, "Sveriges nationaldag").From(2005),
    OnOrFrom(kFriday, 6, 19, "Midsommarafton").NameOnly(),
    OnOrFrom(kSaturday, 6, 20, "Midsommardagen"),
    OnOrFrom(kSaturday, 10, 31, "Alla helgons dag"),
    Fixed(12, 24, "Julafton").NameOnly(),
    Fixed(12, 25, "Juldagen"),
    Fixed(12, 26, "Annandag jul"),
    Fixed(12, 31, "Nyårsafton").NameOnly(),
};

constexpr std::array kNorway{
    Fixed(1, 1, "Første nyttårsdag"),         FromEaster(-7, "Palmesøndag").NameOnly(),
    FromEaster(-3, "Skjærtorsdag"),           FromEaster(-2, "Langfredag"),
    FromEaster(-1, "Påskeaften").NameOnly(),  FromEaster(0, "Første påskedag"),
    FromEaster(1, "Andre påskedag"),          Fixed(5, 1, "Arbeidernes dag"),
    Fixed(5, 17, "Grunnlovsdagen"),           FromEaster(39, "Kristi himmelfartsdag"),
    FromEaster(48, "Pinseaften").NameOnly(),  FromEaster(49, "Første pinsedag"),
    FromEaster(50, "Andre pinsedag"),         Fixed(12, 24, "Julaften").NameOnly(),
    Fixed(12, 25, "Første juledag"),          Fixed(12, 26, "Andre juledag"),
    Fixed(12, 31, "Nyttårsaften").NameOnly(),
};

// The day of prayer was abolished from 2024 on.
constexpr std::array kDenmark{
    Fixed(1, 1, "Nytårsdag"),
    FromEaster(-3, "Skærtorsdag"),
    FromEaster(-2, "Langfredag"),
    FromEaster(0, "Påskedag"),
    FromEaster(1, "2. påskedag"),
    FromEaster(26, "Store bededag").Until(2023),
    FromEaster(39, "Kristi himmelfartsdag"),
    FromEaster(49, "Pinsedag"),
    FromEaster(50, "2. pinsedag"),
    Fixed(6, 5, "Grundlovsdag").NameOnly(),
    Fixed(12, 24, "Juleaftensdag").NameOnly(),
    Fixed(12, 25, "Juledag"),
    Fixed(12, 26, "2. juledag"),
    Fixed(12, 31, "Nytårsaftensdag").NameOnly(),
};

constexpr std::array kFinland{
    Fixed(1, 1, "Uudenvuodenpäivä"),
    Fixed(1, 6, "Loppiainen"),
    FromEaster(-2, "Pitkäperjantai"),
    FromEaster(0, "Pääsiäispäivä"),
    FromEaster(1, "2. pääsiäispäivä"),
    Fixed(5, 1, "Vappu"),
    FromEaster(39, "Helatorstai"),
    FromEaster(49, "Helluntaipäivä"),
    OnOrFrom(kFriday, 6, 19, "Juhannusaatto").NameOnly(),
    OnOrFrom(kSaturday, 6, 20, "Juhannuspäivä"),
    OnOrFrom(kSaturday, 10, 31, "Pyhäinpäivä"),
    Fixed(12, 6, "Itsenäisyyspäivä"),
    Fixed(12, 24, "Jouluaatto").NameOnly(),
    Fixed(12, 25, "Joulupäivä"),
    Fixed(12, 26, "Tapaninpäivä"),
    Fixed(12, 31, "Uudenvuodenaatto").NameOnly(),
};

// What is free in all of the states. Once, at its 500th return, Reformation Day was.
constexpr std::array kGermany{
    Fixed(1, 1, "Neujahr"),
    FromEaster(-2, "Karfreitag"),
    FromEaster(0, "Ostersonntag").NameOnly(),
    FromEaster(1, "Ostermontag"),
    Fixed(5, 1, "Tag der Arbeit"),
    FromEaster(39, "Christi Himmelfahrt"),
    FromEaster(49, "Pfingstsonntag").NameOnly(),
    FromEaster(50, "Pfingstmontag"),
    Fixed(10, 3, "Tag der Deutschen Einheit"),
    Fixed(10, 31, "Reformationstag").In(2017),
    Fixed(12, 24, "Heiligabend").NameOnly(),
    Fixed(12, 25, "1. Weihnachtstag"),
    Fixed(12, 26, "2. Weihnachtstag"),
    Fixed(12, 31, "Silvester").NameOnly(),
};

// What the states have besides. What only some of a state's communities keep has a name alone.
constexpr std::string_view kEpiphany = "Heilige Drei Könige", kCorpusChristi = "Fronleichnam",
                           kAssumption = "Mariä Himmelfahrt", kReformation = "Reformationstag",
                           kAllSaints = "Allerheiligen", kWomensDay = "Internationaler Frauentag",
                           kLiberation = "Tag der Befreiung";

constexpr std::array kBadenWuerttemberg{Fixed(1, 6, kEpiphany), FromEaster(60, kCorpusChristi),
                                        Fixed(11, 1, kAllSaints)};
constexpr std::array kBavaria{Fixed(1, 6, kEpiphany), FromEaster(60, kCorpusChristi),
                              Fixed(8, 15, kAssumption).NameOnly(), Fixed(11, 1, kAllSaints)};
// The days of 2020, 2025 and 2028 are of those years alone.
constexpr std::array kBerlin{Fixed(3, 8, kWomensDay).From(2019), Fixed(5, 8, kLiberation).In(2020),
                             Fixed(5, 8, kLiberation).In(2025),
                             Fixed(6, 17, "Jahrestag des Aufstandes vom 17. Juni 1953").In(2028)};
constexpr std::array kBrandenburg{FromEaster(0, "Ostersonntag"), FromEaster(49, "Pfingstsonntag"),
                                  Fixed(10, 31, kReformation).Until(2016),
                                  Fixed(10, 31, kReformation).From(2018)};
constexpr std::array kHesse{FromEaster(60, kCorpusChristi)};
constexpr std::array kMecklenburg{Fixed(3, 8, kWomensDay).From(2023), Fixed(10, 31, kReformation).Until(2016),
                                  Fixed(10, 31, kReformation).From(2018)};
constexpr std::array kRhineland{FromEaster(60, kCorpusChristi), Fixed(11, 1, kAllSaints)};
constexpr std::array kSaarland{FromEaster(60, kCorpusChristi), Fixed(8, 15, kAssumption),
                               Fixed(11, 1, kAllSaints)};
constexpr std::array kSaxony{FromEaster(60, kCorpusChristi).NameOnly(),
                             Fixed(10, 31, kReformation).Until(2016), Fixed(10, 31, kReformation).From(2018),
                             OnOrFrom(kWednesday, 11, 16, "Buß- und Bettag")};
constexpr std::array kSaxonyAnhalt{Fixed(1, 6, kEpiphany), Fixed(10, 31, kReformation).Until(2016),
                                   Fixed(10, 31, kReformation).From(2018)};
constexpr std::array kThuringia{
    FromEaster(60, kCorpusChristi).NameOnly(), Fixed(9, 20, "Weltkindertag").From(2019),
    Fixed(10, 31, kReformation).Until(2016), Fixed(10, 31, kReformation).From(2018)};
// Bremen, Hamburg, Lower Saxony, Schleswig-Holstein.
constexpr std::array kTheNorth{Fixed(10, 31, kReformation).From(2018)};

// One law for all of its states. Good Friday was free for Protestants until 2018.
constexpr std::array kAustria{
    Fixed(1, 1, "Neujahr"),
    Fixed(1, 6, kEpiphany),
    FromEaster(-2, "Karfreitag").NameOnly(),
    FromEaster(0, "Ostersonntag").NameOnly(),
    FromEaster(1, "Ostermontag"),
    Fixed(5, 1, "Staatsfeiertag"),
    FromEaster(39, "Christi Himmelfahrt"),
    FromEaster(49, "Pfingstsonntag").NameOnly(),
    FromEaster(50, "Pfingstmontag"),
    FromEaster(60, kCorpusChristi),
    Fixed(8, 15, kAssumption),
    Fixed(10, 26, "Nationalfeiertag"),
    Fixed(11, 1, kAllSaints),
    Fixed(12, 8, "Mariä Empfängnis"),
    Fixed(12, 24, "Heiliger Abend").NameOnly(),
    Fixed(12, 25, "Christtag"),
    Fixed(12, 26, "Stefanitag"),
    Fixed(12, 31, "Silvester").NameOnly(),
};

// Four days are free in all of the cantons. What only some of them keep has a name alone.
constexpr std::array kSwitzerland{
    Fixed(1, 1, "Neujahr"),
    Fixed(1, 2, "Berchtoldstag").NameOnly(),
    Fixed(1, 6, kEpiphany).NameOnly(),
    Fixed(3, 19, "Josefstag").NameOnly(),
    FromEaster(-2, "Karfreitag").NameOnly(),
    FromEaster(0, "Ostersonntag").NameOnly(),
    FromEaster(1, "Ostermontag").NameOnly(),
    Fixed(5, 1, "Tag der Arbeit").NameOnly(),
    FromEaster(39, "Auffahrt"),
    FromEaster(49, "Pfingstsonntag").NameOnly(),
    FromEaster(50, "Pfingstmontag").NameOnly(),
    FromEaster(60, kCorpusChristi).NameOnly(),
    Fixed(8, 1, "Bundesfeier"),
    Fixed(8, 15, kAssumption).NameOnly(),
    Fixed(11, 1, kAllSaints).NameOnly(),
    Fixed(12, 8, "Mariä Empfängnis").NameOnly(),
    Fixed(12, 24, "Heiligabend").NameOnly(),
    Fixed(12, 25, "Weihnachtstag"),
    Fixed(12, 26, "Stephanstag").NameOnly(),
    Fixed(12, 31, "Silvester").NameOnly(),
};

// What all of the United Kingdom shares. The bank holidays in May were moved for jubilees and anniversaries.
constexpr std::array kUnitedKingdom{
    Fixed(1, 1, "New Year's Day").WithSubstitute(),
    FromEaster(-2, "Good Friday"),
    FromEaster(0, "Easter Sunday").NameOnly(),
    OnOrFrom(kMonday, 5, 1, "Early May bank holiday").Until(2019),
    Fixed(5, 8, "Early May bank holiday (VE day)").In(2020),
    OnOrFrom(kMonday, 5, 1, "Early May bank holiday").From(2021),
    OnOrFrom(kMonday, 5, 25, "Spring bank holiday").Until(2001),
    Fixed(6, 3, "Golden Jubilee").In(2002),
    Fixed(6, 4, "Spring bank holiday").In(2002),
    OnOrFrom(kMonday, 5, 25, "Spring bank holiday").From(2003).Until(2011),
    Fixed(4, 29, "Royal wedding").In(2011),
    Fixed(6, 4, "Spring bank holiday").In(2012),
    Fixed(6, 5, "Diamond Jubilee").In(2012),
    OnOrFrom(kMonday, 5, 25, "Spring bank holiday").From(2013).Until(2021),
    Fixed(6, 2, "Spring bank holiday").In(2022),
    Fixed(6, 3, "Platinum Jubilee").In(2022),
    Fixed(9, 19, "State Funeral of Queen Elizabeth II").In(2022),
    OnOrFrom(kMonday, 5, 25, "Spring bank holiday").From(2023),
    Fixed(5, 8, "Coronation of King Charles III").In(2023),
    Fixed(12, 24, "Christmas Eve").NameOnly(),
    Fixed(12, 25, "Christmas Day").WithSubstitute(),
    Fixed(12, 26, "Boxing Day").WithSubstitute(),
    Fixed(12, 31, "New Year's Eve").NameOnly(),
};

constexpr std::array kEnglandAndWales{
    FromEaster(1, "Easter Monday"),
    OnOrFrom(kMonday, 8, 25, "Summer bank holiday"),
};

constexpr std::array kScotland{
    Fixed(1, 2, "2nd January").WithSubstitute(),
    OnOrFrom(kMonday, 8, 1, "Summer bank holiday"),
    Fixed(6, 15, "World Cup bank holiday").In(2026),
    Fixed(11, 30, "St Andrew's Day").WithSubstitute().From(2007),
};

constexpr std::array kNorthernIreland{
    Fixed(3, 17, "St Patrick's Day").WithSubstitute(),
    FromEaster(1, "Easter Monday"),
    Fixed(7, 12, "Battle of the Boyne").WithSubstitute(),
    OnOrFrom(kMonday, 8, 25, "Summer bank holiday"),
};

struct cCountryRules {
    cHolidayCountry country;
    std::span<const cHolidayRule> shared, own;
};

constexpr std::array kCountries{
    cCountryRules{{"AT", "Austria"}, {}, kAustria},
    cCountryRules{{"DE", "Germany"}, {}, kGermany},
    cCountryRules{{"DE-BW", "Germany (Baden-Wuerttemberg)"}, kGermany, kBadenWuerttemberg},
    cCountryRules{{"DE-BY", "Germany (Bavaria)"}, kGermany, kBavaria},
    cCountryRules{{"DE-BE", "Germany (Berlin)"}, kGermany, kBerlin},
    cCountryRules{{"DE-BB", "Germany (Brandenburg)"}, kGermany, kBrandenburg},
    cCountryRules{{"DE-HB", "Germany (Bremen)"}, kGermany, kTheNorth},
    cCountryRules{{"DE-HH", "Germany (Hamburg)"}, kGermany, kTheNorth},
    cCountryRules{{"DE-HE", "Germany (Hesse)"}, kGermany, kHesse},
    cCountryRules{{"DE-MV", "Germany (Mecklenburg-Western Pomerania)"}, kGermany, kMecklenburg},
    cCountryRules{{"DE-NI", "Germany (Lower Saxony)"}, kGermany, kTheNorth},
    cCountryRules{{"DE-NW", "Germany (North Rhine-Westphalia)"}, kGermany, kRhineland},
    cCountryRules{{"DE-RP", "Germany (Rhineland-Palatinate)"}, kGermany, kRhineland},
    cCountryRules{{"DE-SL", "Germany (Saarland)"}, kGermany, kSaarland},
    cCountryRules{{"DE-SN", "Germany (Saxony)"}, kGermany, kSaxony},
    cCountryRules{{"DE-ST", "Germany (Saxony-Anhalt)"}, kGermany, kSaxonyAnhalt},
    cCountryRules{{"DE-SH", "Germany (Schleswig-Holstein)"}, kGermany, kTheNorth},
    cCountryRules{{"DE-TH", "Germany (Thuringia)"}, kGermany, kThuringia},
    cCountryRules{{"DK", "Denmark"}, {}, kDenmark},
    cCountryRules{{"FI", "Finland"}, {}, kFinland},
    cCountryRules{{"NO", "Norway"}, {}, kNorway},
    cCountryRules{{"SE", "Sweden"}, {}, kSweden},
    cCountryRules{{"CH", "Switzerland"}, {}, kSwitzerland},
    cCountryRules{{"GB", "United Kingdom (England and Wales)"}, kUnitedKingdom, kEnglandAndWales},
    cCountryRules{{"GB-NIR", "United Kingdom (Northern Ireland)"}, kUnitedKingdom, kNorthernIreland},
    cCountryRules{{"GB-SCT", "United Kingdom (Scotland)"}, kUnitedKingdom, kScotland},
};

constexpr auto kNames = [] {
    std::array<cHolidayCountry, kCountries.size()> names{};
    std::transform(kCountries.begin(), kCountries.end(), names.begin(),
                   [](const cCountryRules& rules) { return rules.country; });
    return names;
}();

}  // namespace

std::span<const cHolidayCountry> HolidayCountries() {
    return kNames;
}

std::vector<cHolidayRule> HolidayRules(std::string_view code) {
    const auto found = std::find_if(kCountries.begin(), kCountries.end(), [code](const cCountryRules& rules) {
        return rules.country.code == code;
    });
    if (found == kCountries.end()) return {};
    std::vector<cHolidayRule> rules(found->shared.begin(), found->shared.end());
    rules.insert(rules.end(), found->own.begin(), found->own.end());
    return rules;
}

}  // namespace vigrel
