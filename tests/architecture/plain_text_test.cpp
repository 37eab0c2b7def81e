// Text of senders, files and the configuration is shown as it stands: the windows use no call of the toolkit
// that would take it for markup.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

using Complaints = std::vector<std::string>;

// The one place that knows how text is kept plain.
constexpr std::string_view kHelper = "windows/plain_text.";

// What interprets its text, or lets others do so.
const std::regex& Interpreting() {
    static const std::regex calls(
        R"(\bnew QLabel\b|\bQLabel\s+\w|\bQLabel\s*[({]|<QLabel>)"
        R"(|\bnew QMessageBox\b|\bQMessageBox\s+\w|\bQMessageBox::(about|critical|information|question|warning))"
        R"(|\bQErrorMessage\b|\bQWhatsThis\b|setWhatsThis|WhatsThisRole|\bQTextBrowser\b|\bQTextEdit\b)"
        R"(|\bQTextDocument\b|\bQStaticText\b|\bsetHtml\b|\binsertHtml\b|\bappendHtml\b|\bsetMarkdown\b)"
        R"(|\bsetTextFormat\b|\bQt::(RichText|AutoText|MarkdownText)\b)");
    return calls;
}

// Most lines say nothing that the expression, which is slow, could find.
bool IsWorthALook(const std::string& line) {
    for (const char* word : {"QLabel", "QMessageBox", "QErrorMessage", "WhatsThis", "QText", "QStaticText",
                             "Html", "Markdown", "TextFormat", "RichText", "AutoText"}) {
        if (line.find(word) != std::string::npos) return true;
    }
    return false;
}

bool Bypasses(const std::string& line) {
    if (line.starts_with("#include") || line.find("class QLabel;") != std::string::npos) return false;
    // A notification's text is the desktop's to interpret; a status bar's is painted.
    if (line.find("showMessage(") != std::string::npos) return line.find("statusBar()") == std::string::npos;
    // The icon's tool tip is shown by the desktop.
    if (line.find("m_Icon.setToolTip") != std::string::npos) return true;
    return IsWorthALook(line) && std::regex_search(line, Interpreting());
}

Complaints Check(const std::filesystem::path& folder) {
    Complaints complaints;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp") continue;
        const std::string file = std::filesystem::relative(entry.path(), folder).generic_string();
        // The operator's page is the program's own, as it was installed.
        if (file.starts_with(kHelper) || file.starts_with("receiver_ui/dialogs/operator_page.")) continue;
        std::ifstream lines(entry.path());
        int number = 0;
        for (std::string line; std::getline(lines, line);) {
            ++number;
            if (Bypasses(line)) complaints.push_back(file + ":" + std::to_string(number) + ": " + line);
        }
    }
    return complaints;
}

// What says a text of its own, or shows figures alone.
bool SaysItself(const std::string& line) {
    for (const char* said : {"fputs(\"", "fflush(stderr)", "\"%s%zu of %zu frames", "cStreamStatus status"}) {
        if (line.find(said) != std::string::npos) return true;
    }
    return false;
}

// Helpers of the build, whose texts are the developer's own.
bool IsOfTheBuild(const std::string& file) {
    return file.starts_with("make-sounds/") || file.starts_with("to-code-page/");
}

// Where progress is shown, which is figures.
bool ShowsProgress(const std::string& file, const std::string& line) {
    return file.ends_with("/main.cpp") && line.find("std::fputs(text.c_str(), stderr);") != std::string::npos;
}

Complaints CheckStandardError(const std::filesystem::path& folder) {
    Complaints complaints;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string extension = entry.path().extension().string();
        const std::string file = std::filesystem::relative(entry.path(), folder).generic_string();
        if ((extension != ".h" && extension != ".cpp") || IsOfTheBuild(file)) continue;
        if (file == "common/standard_error.cpp") continue;
        std::ifstream lines(entry.path());
        int number = 0;
        for (std::string line; std::getline(lines, line);) {
            ++number;
            if (line.find("stderr") == std::string::npos && line.find("std::cerr") == std::string::npos)
                continue;
            if (!SaysItself(line) && !ShowsProgress(file, line))
                complaints.push_back(file + ":" + std::to_string(number) + ": " + line);
        }
    }
    return complaints;
}

TEST(PlainText, NothingReachesStandardErrorThatCouldSteerATerminal) {
    for (const char* folder : {"src", "apps", "tools"}) {
        EXPECT_EQ(CheckStandardError(std::filesystem::path(VIGREL_PROJECT_DIR) / folder), Complaints{});
    }
}

TEST(PlainText, ALineThatCouldIsFound) {
    testing::cTemporaryFolder folder;
    std::ofstream(folder.Path() / "x.cpp") << "std::fprintf(stderr, \"%s\", text);\n"
                                           << "std::fputs(\"constant\", stderr);\n"
                                           << "std::cerr << text;\n";
    EXPECT_EQ(CheckStandardError(folder.Path()).size(), 2u);
}

TEST(PlainText, NothingInTheWindowsTakesTextForMarkup) {
    EXPECT_EQ(Check(std::filesystem::path(VIGREL_PROJECT_DIR) / "src"), Complaints{});
    EXPECT_EQ(Check(std::filesystem::path(VIGREL_PROJECT_DIR) / "apps"), Complaints{});
}

TEST(PlainText, BothDesktopProgramsRunTheApplicationThatKeepsLabelsPlain) {
    for (const char* program : {"receiver", "definitions"}) {
        std::ifstream file(std::filesystem::path(VIGREL_PROJECT_DIR) / "apps" / program / "main.cpp");
        const std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        EXPECT_NE(content.find("cApplication application("), std::string::npos) << program;
        EXPECT_EQ(content.find("QApplication application("), std::string::npos) << program;
    }
}

TEST(PlainText, EachInterpretingCallIsNamed) {
    for (const char* line :
         {"auto* label = new QLabel(text);", "    QLabel m_Time;", "QLabel label(text);", "m_Label(QLabel())",
          "auto label = std::make_unique<QLabel>();", "QMessageBox box(owner);",
          "QMessageBox::warning(this, title, text);", "label->setTextFormat(Qt::RichText);",
          "text.setHtml(name);", "widget->setWhatsThis(name);", "icon.showMessage(title, text);",
          "auto* text = new QTextEdit;", "m_Icon.setToolTip(text);"}) {
        EXPECT_TRUE(Bypasses(line)) << line;
    }
}

TEST(PlainText, WhatShowsTextAsItStandsMayBeUsed) {
    for (const char* line :
         {"#include <QLabel>", "class QLabel;", "QLabel* m_File;", "findChild<QLabel*>(\"Label\")",
          "auto* label = new cPlainLabel(text);", "cPlainMessageBox box(owner);",
          "case QMessageBox::Warning:", "return QMessageBox::NoIcon;", "auto* text = new QPlainTextEdit;",
          "statusBar()->showMessage(text, 10000);", "widget->setToolTip(text);"}) {
        EXPECT_FALSE(Bypasses(line)) << line;
    }
}

TEST(PlainText, AComplaintTellsFileLineAndCall) {
    const testing::cTemporaryFolder folder;
    std::filesystem::create_directories(folder.Path() / "editor_ui");
    std::filesystem::create_directories(folder.Path() / "windows");
    std::ofstream(folder.Path() / "editor_ui" / "a.cpp") << "int x;\nQLabel label(text);\n";
    std::ofstream(folder.Path() / "windows" / "plain_text.cpp") << "QLabel label(text);\n";
    EXPECT_EQ(Check(folder.Path()), Complaints{"editor_ui/a.cpp:2: QLabel label(text);"});
}

}  // namespace
}  // namespace vigrel::testing
