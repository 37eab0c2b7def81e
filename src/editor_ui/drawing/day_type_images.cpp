#include "editor_ui/drawing/day_type_images.h"

#include <QCoreApplication>

#include "common/numbers.h"
#include "editor_ui/drawing/day_type_names.h"

namespace vigrel {
namespace {

constexpr std::string_view kSection = "DayTypeImages";

constexpr std::array<const char*, cDayTypeImages::kDrawings> kNames{
    "Star",       "Half day", "Fir tree", "Egg",   "Sun",      "Flag",    "Moon", "Snowflake",
    "Heart",      "Suitcase", "Wrench",   "Book",  "Umbrella", "Bell",    "Key",  "Clock",
    "Music note", "Cup",      "Leaf",     "House", "Rocket",   "Diamond", "Cross"};

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
        const double drawing = Val(m_Ini.GetIniString(kSection, Key(number), "", kDefinitionsIni));
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
    return QCoreApplication::translate("cDayTypeImages", kNames[static_cast<std::size_t>(drawing) - 1]);
}

int cDayTypeImages::DrawingOf(int number) const {
    return number < 1 || number > kTypes ? 0 : m_Chosen[static_cast<std::size_t>(number) - 1];
}

bool cDayTypeImages::Choose(int number, int drawing) {
    if (DrawingOf(number) == 0 || !IsDrawing(drawing)) return false;
    m_Chosen[static_cast<std::size_t>(number) - 1] = drawing;
    m_Ini.PutIniString(kSection, Key(number), std::to_string(drawing), kDefinitionsIni);
    return m_Ini.GetIniString(kSection, Key(number), "", kDefinitionsIni) == std::to_string(drawing);
}

}  // namespace vigrel
