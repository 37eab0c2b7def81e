#include "editor_ui/pages/editor_services.h"

#include <QCoreApplication>

#include "adapters/qt/qt_text.h"

namespace vigrel {
namespace {

constexpr int kPaperImage = 128;  // pixels

}  // namespace

cPrintout::cSign SignOf(std::int16_t dayType, const cEditorServices& services) {
    return {services.m_DayTypeImages.Image(dayType - kWeekDays + 1, kPaperImage, 1),
            ToQString(services.m_DayTypeNames.Name(dayType))};
}

void TellNotStored(QWidget* owner, const cEditorServices& services) {
    const QString file = PathToQString(services.m_Ini.FullPath(kDefinitionsIni));
    services.m_Prompts.ShowFailure(
        owner, QCoreApplication::translate("Reasons", "The choice could not be stored in %1.").arg(file));
}

}  // namespace vigrel
