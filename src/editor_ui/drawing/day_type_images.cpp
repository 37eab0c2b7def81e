#include "editor_ui/drawing/day_type_images.h"

#include "common/numbers.h"
#include "editor_ui/drawing/day_type_names.h"

namespace vigrel {
namespace {

constexpr std::string_view kImagesSection = "DayTypeImages";

constexpr std::array<const char*, cDayTypeImages::kDrawings> kNames{
    QT_TRANSLATE_NOOP("cDayTypeImages", "Star"),       QT_TRANSLATE_NOOP("cDayTypeImages", "Half day"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Fir tree"),   QT_TRANSLATE_NOOP("cDayTypeImages", "Egg"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Sun"),        QT_TRANSLATE_NOOP("cDayTypeImages", "Flag"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Moon"),       QT_TRANSLATE_NOOP("cDayTypeImages", "Snowflake"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Heart"),      QT_TRANSLATE_NOOP("cDayTypeImages", "Suitcase"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Wrench"),     QT_TRANSLATE_NOOP("cDayTypeImages", "Book"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Umbrella"),   QT_TRANSLATE_NOOP("cDayTypeImages", "Bell"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Key"),        QT_TRANSLATE_NOOP("cDayTypeImages", "Clock"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Music note"), QT_TRANSLATE_NOOP("cDayTypeImages", "Cup"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Leaf"),       QT_TRANSLATE_NOOP("cDayTypeImages", "House"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Rocket"),     QT_TRANSLATE_NOOP("cDayTypeImages", "Diamond"),
    QT_TRANSLATE_NOOP("cDayTypeImages", "Cross")};

bool IsDrawing(double drawing) {
    return drawing >= 1 && drawing <= cDayTypeImages::kDrawings;
}

// Of an image, counted from 1: keys are day types.
std::string Key(int number) {
    return std::to_string(number - 1 + kWeekDays);
}

}  // namespace

cDayTypeImages::cDayTypeImages(cIni& ini) : m_Ini(ini) {
    for (int number = 1; number <= kTypes; ++number) {
        const double drawing = Val(m_Ini.GetIniString(kImagesSection, Key(number), "", kDefinitionsIni));
        m_Chosen[static_cast<std::size_t>(number) - 1] =
            IsDrawing(drawing) ? static_cast<int>(drawing) : number;
    }
}

QPixmap cDayTypeImages::Image(int number, int size, qreal devicePixelRatio) const {
    return Drawing(DrawingOf(number), size, devicePixelRatio);
}

QIcon cDayTypeImages::Icon(int number, qreal devicePixelRatio) const {
    const QPixmap image = Image(number, kDayTypeImageSize, devicePixelRatio);
    QIcon icon(image);
    icon.addPixmap(image, QIcon::Selected);
    return icon;
}

QPixmap cDayTypeImages::Drawing(int drawing, int size, qreal devicePixelRatio) const {
    return m_Drawings.Image(drawing, size, devicePixelRatio);
}

QString cDayTypeImages::DrawingName(int drawing) {
    if (!IsDrawing(drawing)) return {};
    return tr(kNames[static_cast<std::size_t>(drawing) - 1]);
}

int cDayTypeImages::DrawingOf(int number) const {
    return number < 1 || number > kTypes ? 0 : m_Chosen[static_cast<std::size_t>(number) - 1];
}

bool cDayTypeImages::Choose(int number, int drawing) {
    if (DrawingOf(number) == 0 || !IsDrawing(drawing)) return false;
    m_Chosen[static_cast<std::size_t>(number) - 1] = drawing;
    m_Ini.PutIniString(kImagesSection, Key(number), std::to_string(drawing), kDefinitionsIni);
    return m_Ini.GetIniString(kImagesSection, Key(number), "", kDefinitionsIni) == std::to_string(drawing);
}

}  // namespace vigrel
