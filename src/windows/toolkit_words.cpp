#include "windows/toolkit_words.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vigrel {
namespace {

struct cLanguage {
    std::string_view number;
    const char* toolkit;
};
// English stands last: its words are the toolkit's sources.
constexpr std::array<cLanguage, 6> kLanguages{
    {{"045", "da"}, {"046", "sv"}, {"047", "nb"}, {"049", "de"}, {"358", "fi"}, {"044", "en"}}};
constexpr std::size_t kColumns = kLanguages.size() - 1;

struct cWord {
    std::string_view source;
    std::array<const char16_t*, kColumns> words;  // in the order of kLanguages
};

// Where the toolkit looks them up: buttons of boxes, texts of several lines, of one line, tabs.
constexpr std::array<std::string_view, 5> kContexts{"QPlatformTheme", "QWidgetTextControl", "QLineEdit",
                                                    "QTabBar", "CloseButton"};

constexpr cWord kWords[] = {
    {"OK", {u"OK", u"OK", u"OK", u"OK", u"OK"}},
    {"&Yes", {u"&Ja", u"&Ja", u"&Ja", u"&Ja", u"&Kyllä"}},
    {"&No", {u"&Nej", u"&Nej", u"&Nei", u"&Nein", u"&Ei"}},
    {"Cancel", {u"Annuller", u"Avbryt", u"Avbryt", u"Abbrechen", u"Peruuta"}},
    {"Close", {u"Luk", u"Stäng", u"Lukk", u"Schließen", u"Sulje"}},
    {"Save", {u"Gem", u"Spara", u"Lagre", u"Speichern", u"Tallenna"}},
    {"Discard", {u"Kassér", u"Kasta", u"Forkast", u"Verwerfen", u"Hylkää"}},
    {"Open", {u"Åbn", u"Öppna", u"Åpne", u"Öffnen", u"Avaa"}},
    {"&Undo", {u"&Fortryd", u"&Ångra", u"&Angre", u"&Rückgängig", u"K&umoa"}},
    {"&Redo", {u"&Gentag", u"&Gör om", u"&Gjenta", u"&Wiederholen", u"&Tee uudelleen"}},
    {"Cu&t", {u"K&lip", u"Klipp &ut", u"Klipp &ut", u"&Ausschneiden", u"&Leikkaa"}},
    {"&Copy", {u"&Kopiér", u"&Kopiera", u"&Kopier", u"&Kopieren", u"&Kopioi"}},
    {"&Paste", {u"&Indsæt", u"Klistra &in", u"&Lim inn", u"&Einfügen", u"L&iitä"}},
    {"Delete", {u"Slet", u"Ta bort", u"Slett", u"Löschen", u"Poista"}},
    {"Close Tab", {u"Luk faneblad", u"Stäng flik", u"Lukk fane", u"Tab schließen", u"Sulje välilehti"}},
    {"Scroll Left",
     {u"Rul til venstre", u"Rulla åt vänster", u"Rull til venstre", u"Nach links", u"Vieritä vasemmalle"}},
    {"Scroll Right",
     {u"Rul til højre", u"Rulla åt höger", u"Rull til høyre", u"Nach rechts", u"Vieritä oikealle"}},
    {"Select All", {u"Markér alt", u"Markera allt", u"Merk alt", u"Alles auswählen", u"Valitse kaikki"}},
};

auto FindLanguage(std::string_view number) {
    return std::find_if(kLanguages.begin(), kLanguages.end(),
                        [&](const cLanguage& language) { return language.number == number; });
}

}  // namespace

QString ToolkitLanguage(std::string_view language) {
    const auto found = FindLanguage(language);
    return found == kLanguages.end() ? QString() : QString(found->toolkit);
}

std::string LanguageOfDesktop(const QLocale& desktop) {
    const auto found = std::find_if(kLanguages.begin(), kLanguages.end(), [&](const cLanguage& language) {
        return QLocale(language.toolkit).language() == desktop.language();
    });
    return std::string(found == kLanguages.end() ? kLanguages.back().number : found->number);
}

void cToolkitWords::SetLanguage(std::string_view language) {
    const auto column = static_cast<std::size_t>(FindLanguage(language) - kLanguages.begin());
    m_Column = column < kColumns ? static_cast<int>(column) : -1;
}

QString cToolkitWords::translate(const char* context, const char* source, const char*, int) const {
    if (m_Column < 0 || std::find(kContexts.begin(), kContexts.end(), context) == kContexts.end()) return {};
    const auto found = std::find_if(std::begin(kWords), std::end(kWords),
                                    [&](const cWord& word) { return word.source == source; });
    if (found == std::end(kWords)) return {};
    return QString::fromUtf16(found->words[static_cast<std::size_t>(m_Column)]);
}

}  // namespace vigrel
