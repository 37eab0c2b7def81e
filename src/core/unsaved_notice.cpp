#include "core/unsaved_notice.h"

#include <string>
#include <utility>

#include "common/dates.h"

namespace vigrel {
namespace {

constexpr double kStatusPause = 10.0 / 86400;  // days

}  // namespace

std::string cUnsavedNotice::Summary() const {
    const cTexts& texts = m_Services.texts;
    const auto format = [&](const std::string& pattern) {
        return FormatDateTime(m_Services.store.UnsavedSince(), pattern, m_Services.forms);
    };
    return texts.GetText(TextUnsaved) + " " + std::to_string(m_Services.store.UnsavedCount()) + ", " +
           texts.GetText(TextUnsavedSince) + " " + format(m_Services.settings.m_DateFormat) + " " +
           format(m_Services.settings.m_TimeFormat);
}

std::string cUnsavedNotice::FolderText() const {
    return m_Services.store.FolderProblem().empty() ? "" : m_Services.texts.GetText(TextFolderUnreadable);
}

void cUnsavedNotice::TellOfFolder() {
    if (std::exchange(m_ToldOfFolder, true) || FolderText().empty()) return;
    m_Services.windows.ShowNotice(FolderText());
    m_Services.status.SetStatus(FolderText() + " (" + m_Services.store.FolderProblem() + ")");
}

void cUnsavedNotice::Tick() {
    TellOfFolder();
    const std::size_t count = m_Services.store.UnsavedCount();
    if (count != m_Shown) {
        const std::string advice = m_Services.texts.GetText(TextUnsavedAdvice);
        m_Services.windows.ShowNotice(count == 0 ? FolderText() : Summary() + "\r\n\r\n" + advice);
        m_Shown = count;
    }
    const bool changes = count == 0 || m_Told == 0;
    const double now = m_Services.clock.Steady();
    if (count == m_Told || (!changes && now < m_ToldSteady + kStatusPause)) return;
    TellStatus();
    m_ToldSteady = now;
}

void cUnsavedNotice::TellTheLast() {
    if (m_Services.store.UnsavedCount() != m_Told) TellStatus();
}

void cUnsavedNotice::TellStatus() {
    m_Told = m_Services.store.UnsavedCount();
    m_Services.status.SetStatus(m_Told == 0 ? m_Services.texts.GetText(TextAllSaved)
                                            : Summary() + " (" + m_Services.store.UnsavedReason() + ")");
}

}  // namespace vigrel
