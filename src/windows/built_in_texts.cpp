#include "windows/built_in_texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "common/code_page.h"

namespace vigrel {

cDeliveredTexts BuiltInTexts() {
    cDeliveredTexts texts;
    for (const QFileInfo& entry : QDir(":/texts").entryInfoList()) {
        QFile file(entry.filePath());
        if (!file.open(QIODevice::ReadOnly)) continue;
        texts.Add(entry.suffix().toStdString(), Utf8ToCodePage(file.readAll().toStdString()));
    }
    return texts;
}

}  // namespace vigrel
