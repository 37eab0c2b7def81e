#include "editor_ui/calendar/country_names.h"

#include <QCoreApplication>

namespace vigrel {
namespace {

// Of the calendar's own table, for those who translate.
[[maybe_unused]] constexpr const char* kCountries[] = {
    QT_TRANSLATE_NOOP("Country", "Austria"),
    QT_TRANSLATE_NOOP("Country", "Germany"),
    QT_TRANSLATE_NOOP("Country", "Germany (Baden-Wuerttemberg)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Bavaria)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Berlin)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Brandenburg)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Bremen)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Hamburg)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Hesse)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Mecklenburg-Western Pomerania)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Lower Saxony)"),
    QT_TRANSLATE_NOOP("Country", "Germany (North Rhine-Westphalia)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Rhineland-Palatinate)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Saarland)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Saxony)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Saxony-Anhalt)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Schleswig-Holstein)"),
    QT_TRANSLATE_NOOP("Country", "Germany (Thuringia)"),
    QT_TRANSLATE_NOOP("Country", "Denmark"),
    QT_TRANSLATE_NOOP("Country", "Finland"),
    QT_TRANSLATE_NOOP("Country", "Norway"),
    QT_TRANSLATE_NOOP("Country", "Sweden"),
    QT_TRANSLATE_NOOP("Country", "Switzerland"),
    QT_TRANSLATE_NOOP("Country", "United Kingdom (England and Wales)"),
    QT_TRANSLATE_NOOP("Country", "United Kingdom (Northern Ireland)"),
    QT_TRANSLATE_NOOP("Country", "United Kingdom (Scotland)")};

}  // namespace

QString CountryName(const cHolidayCountry& country) {
    return QCoreApplication::translate("Country", country.name.data());
}

}  // namespace vigrel
