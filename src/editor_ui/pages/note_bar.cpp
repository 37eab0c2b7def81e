#include "editor_ui/pages/note_bar.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "editor_ui/pages/reasons.h"
#include "windows/plain_text.h"

namespace vigrel {

cNoteBar::cNoteBar(QWidget* parent)
    : QFrame(parent), m_Summary(new cPlainLabel), m_Lines(new QPlainTextEdit) {
    setObjectName("Bar_Notes");
    setFrameShape(QFrame::StyledPanel);
    m_Summary->setObjectName("Label_Notes");
    m_Summary->setWordWrap(true);
    m_Lines->setObjectName("Text_Notes");
    m_Lines->setAccessibleName(tr("What happened to files"));
    m_Lines->setReadOnly(true);
    m_Lines->setTabChangesFocus(true);
    m_Lines->setMaximumHeight(fontMetrics().lineSpacing() * 8);
    m_Lines->hide();
    auto* details = new QPushButton(tr("Details"));
    details->setObjectName("Button_Notes_Details");
    details->setCheckable(true);
    auto* close = new QPushButton(tr("Close"));
    close->setObjectName("Button_Notes_Close");
    auto* line = new QHBoxLayout;
    line->addWidget(m_Summary, 1);
    line->addWidget(details);
    line->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(line);
    layout->addWidget(m_Lines);
    connect(details, &QPushButton::toggled, m_Lines, &QWidget::setVisible);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    hide();
}

void cNoteBar::Add(const std::vector<cDefinitionNote>& notes) {
    using eKind = cDefinitionNote::eKind;
    if (isHidden()) m_Notes.clear();
    m_Notes.insert(m_Notes.end(), notes.begin(), notes.end());
    const auto count = [&](eKind kind) {
        return std::count_if(m_Notes.begin(), m_Notes.end(),
                             [kind](const auto& note) { return note.kind == kind; });
    };
    QStringList summary;
    const auto notUpgraded = count(eKind::NotUpgraded);
    if (const auto upgraded = count(eKind::Upgraded) - notUpgraded; upgraded > 0) {
        summary += tr("Files brought up to a new version: %1.").arg(upgraded);
    }
    if (notUpgraded > 0) {
        summary += tr("Files of an older version that could not be written anew: %1. They stay as they are.")
                       .arg(notUpgraded);
    }
    // Each of those has a line of its failure, too.
    if (const auto failed = count(eKind::Failed) - notUpgraded; failed > 0) {
        summary += tr("What could not be read: %1.").arg(failed);
    }
    QStringList lines;
    for (const cDefinitionNote& note : m_Notes) lines += Told(note.line);
    m_Summary->setText(summary.join(' '));
    m_Lines->setPlainText(lines.join('\n'));
    setVisible(!summary.isEmpty());
}

}  // namespace vigrel
