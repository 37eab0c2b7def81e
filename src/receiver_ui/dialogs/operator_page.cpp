#include "receiver_ui/dialogs/operator_page.h"

#include <QDialog>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

namespace vigrel {
namespace {

namespace fs = std::filesystem;

constexpr const char* kWindowName = "Vigrel_Operator_Page";
constexpr int kWidth = 860, kHeight = 640, kBesidePicture = 40;  // pixels

QDialog* MakeWindow(const std::string& path, QWidget& mainWindow) {
    auto* window = new QDialog(&mainWindow);
    window->setObjectName(kWindowName);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->resize(kWidth, kHeight);
    auto* page = new cOperatorPage(path, window);
    window->setWindowTitle(page->documentTitle());
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(page);
    return window;
}

}  // namespace

std::string FindOperatorPage(const std::string& programFolder, const std::string& language) {
    const fs::path program = programFolder;
    const bool isNumber =
        std::all_of(language.begin(), language.end(), [](char c) { return c >= '0' && c <= '9'; });
    // What the configuration holds names no other file.
    for (const std::string& wanted : {isNumber ? language : std::string(), std::string("044")}) {
        for (const fs::path& folder :
             {program.parent_path() / "share/doc/vigrel-receiver/operator", program / "docs/operator"}) {
            std::error_code error;
            const fs::path page = folder / (wanted + ".md");
            if (fs::is_regular_file(page, error)) return page.string();
        }
    }
    return {};
}

cOperatorPage::cOperatorPage(const std::string& path, QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    QObject::connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { GoTo(link); });
    if (path.empty()) {
        setPlainText("docs/operator: not installed");
        return;
    }
    resize(kWidth, kHeight);
    setSource(QUrl::fromLocalFile(QString::fromStdString(path)), QTextDocument::MarkdownResource);
    // Its first heading.
    setDocumentTitle(document()->firstBlock().text());
}

QVariant cOperatorPage::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    const QImage picture(source().resolved(name).toLocalFile());
    const int width = std::max(1, std::min(picture.width(), this->width() - kBesidePicture));
    return picture.isNull() ? picture : picture.scaledToWidth(width, Qt::SmoothTransformation);
}

// A section is known by the number that its heading and the link begin with.
void cOperatorPage::GoTo(const QUrl& link) {
    const QString number = link.fragment().left(1) + " ";
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != 2 || !block.text().startsWith(number)) continue;
        setTextCursor(QTextCursor(block));
        verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
        return;
    }
}

void cOperatorPage::Show(const std::string& path, QWidget& mainWindow) {
    auto* window = mainWindow.findChild<QDialog*>(kWindowName);
    if (window == nullptr) window = MakeWindow(path, mainWindow);
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace vigrel
