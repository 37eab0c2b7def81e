#pragma once

#include <QCoreApplication>
#include <QIcon>
#include <QString>
#include <array>

#include "common/ini.h"
#include "schedule/day_types.h"
#include "windows/icon_strip.h"

namespace vigrel {

// The small images of the sixteen special day types, numbered from 1. There are more drawings than types:
// which one a type shows is the installation's own choice, keys 7 to 22 of section "DayTypeImages". A type
// without a choice shows the drawing of its own number.
//
// Squares of so many units, or pixels at 100 % in lists.
inline constexpr int kDayTypeImageSize = 16;

class cDayTypeImages {
    Q_DECLARE_TR_FUNCTIONS(cDayTypeImages)
  public:
    static constexpr int kTypes = kDayTypes - kWeekDays;
    static constexpr int kDrawings = 23;

    explicit cDayTypeImages(cIni& ini);

    // Square, of so many pixels at 100 % scale. Null for another number.
    QPixmap Image(int number, int size, qreal devicePixelRatio) const;
    // For lists; it keeps its colours in a selected row.
    QIcon Icon(int number, qreal devicePixelRatio) const;
    QPixmap Drawing(int drawing, int size, qreal devicePixelRatio) const;
    // What a drawing shows, for lists.
    static QString DrawingName(int drawing);
    // The drawing of an image; 0 for another number.
    int DrawingOf(int number) const;
    // False when the choice could not be stored.
    bool Choose(int number, int drawing);

  private:
    cIni& m_Ini;
    cIconStrip m_Drawings{":/icons/daytype"};
    std::array<int, kTypes> m_Chosen{};
};

}  // namespace vigrel
