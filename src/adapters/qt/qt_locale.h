#pragma once

#include <QLocale>
#include <QString>

#include "platform/locale.h"

namespace vigrel {

// How the desktop's user writes dates and times, and what the user's language and country are called.
class cQtLocale : public cLocale {
  public:
    explicit cQtLocale(const QLocale& locale = QLocale::system()) : m_Locale(locale) {}
    cLocaleForms Forms() const override;
    // Empty when the desktop names no language or country.
    std::string EnglishLanguageName() const override;
    std::string NativeLanguageName() const override;
    std::string EnglishCountryName() const override;

  private:
    QLocale m_Locale;
};

// A date or time format of the toolkit as a pattern of FormatDateTime (common/dates.h). The time zone is
// left out; a 12-hour clock keeps its marker.
std::string PatternFromFormat(const QString& format);

}  // namespace vigrel
