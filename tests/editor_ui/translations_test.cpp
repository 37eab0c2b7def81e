// The editor's texts in the six languages: none is missing in the files of translations, none goes past them,
// and each has its form.

#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <map>
#include <set>

#include "editor_ui/editor_pages.h"
#include "editor_ui/marks.h"
#include "windows/toolkit_words.h"

namespace vigrel::testing {
namespace {

constexpr const char* kLanguages[] = {"044", "045", "046", "047", "049", "358"};

QByteArray Content(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QStringList TranslationFiles() {
    return QDir(VIGREL_TRANSLATIONS).entryList({"definitions_*.ts"});
}

struct cEntry {
    QString source, translation, state;
};

std::vector<cEntry> EntriesOf(const QString& file) {
    std::vector<cEntry> entries;
    QXmlStreamReader xml(Content(QString(VIGREL_TRANSLATIONS "/") + file));
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QStringView(u"source")) source = xml.readElementText();
        if (xml.name() == QStringView(u"translation")) {
            const QString state = xml.attributes().value("type").toString();
            entries.push_back({source, xml.readElementText(), state});
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return entries;
}

TEST(Translations, OfFiveLanguagesAreWhatTheSourcesAskFor) {
    QTemporaryDir folder;
    const QStringList files = TranslationFiles();
    ASSERT_EQ(files.size(), 5);
    for (const QString& file : files) {
        ASSERT_TRUE(QFile::copy(QString(VIGREL_TRANSLATIONS "/") + file, folder.filePath(file)));
    }
    ASSERT_EQ(QProcess::execute(VIGREL_TRANSLATIONS "/update.sh", {VIGREL_LUPDATE, folder.path()}), 0);
    for (const QString& file : files) {
        EXPECT_EQ(Content(folder.filePath(file)), Content(QString(VIGREL_TRANSLATIONS "/") + file))
            << "build the target update_translations and translate what is new in " << file.toStdString();
    }
}

QStringList Places(const QString& text) {
    static const QRegularExpression place("%\\d");
    QStringList places;
    for (auto found = place.globalMatch(text); found.hasNext();) places += found.next().captured();
    places.sort();
    return places;
}

// What a text ends with is part of its form: a colon before a field, dots before a dialog.
QString Form(const QString& text) {
    static const QRegularExpression end("(\\.\\.\\.|[.:?])$");
    static const QRegularExpression key("&(?=[^&])");
    return QString("keys %1, lines %2, end \"%3\", places %4")
        .arg(text.count(key))
        .arg(text.count('\n'))
        .arg(end.match(text).captured(), Places(text).join(' '));
}

TEST(Translations, EachTextHasItsWordsInTheFormOfItsSource) {
    for (const QString& file : TranslationFiles()) {
        for (const cEntry& entry : EntriesOf(file)) {
            const std::string where = (file + ": " + entry.source).toStdString();
            EXPECT_EQ(entry.state, "") << where;
            EXPECT_EQ(Form(entry.translation).toStdString(), Form(entry.source).toStdString()) << where;
        }
    }
}

// One word for one thing: the same source says the same everywhere.
TEST(Translations, SayTheSameThingWithTheSameWords) {
    for (const QString& file : TranslationFiles()) {
        std::map<QString, QString> words;
        for (const cEntry& entry : EntriesOf(file)) {
            const QString& first = words.emplace(entry.source, entry.translation).first->second;
            EXPECT_EQ(entry.translation.toStdString(), first.toStdString()) << file.toStdString();
        }
    }
}

// Whether it is the installation's own: figures, names and texts of its files, the station's texts by their
// numbers, and the desktop's names of days and months.
bool IsOfTheInstallation(const QString& text, const cLocaleForms& forms) {
    static const QRegularExpression own(
        "^[^A-Za-z]*$|^t\\d$|^h6\\d\\d$|^\\(\\*\\*\\* "
        "|^/app|^(Receiver|Profile)_\\d{4}\\.dat|^(ColourRules|OwnHolidays).txt|^COM|^Radio$|^March 2026$");
    const auto isNamed = [&](const auto& names) {
        return std::find(names.begin(), names.end(), FromQString(text)) != names.end();
    };
    return own.match(text).hasMatch() || isNamed(forms.dayNames) || isNamed(forms.monthNames);
}

void AddTextsOf(QWidget& widget, QStringList& texts) {
    texts << widget.accessibleName() << widget.accessibleDescription() << widget.toolTip()
          << widget.windowTitle();
    if (auto* label = qobject_cast<QLabel*>(&widget)) texts << label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) texts << button->text();
    if (auto* box = qobject_cast<QGroupBox*>(&widget)) texts << box->title();
    if (auto* menu = qobject_cast<QMenu*>(&widget)) texts << menu->title();
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) texts << line->placeholderText();
    if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) texts << tabs->tabText(i);
    }
    if (auto* choice = qobject_cast<QComboBox*>(&widget)) {
        for (int i = 0; i < choice->count(); ++i) texts << choice->itemText(i);
    }
    if (auto* header = qobject_cast<QHeaderView*>(&widget); header != nullptr && header->model() != nullptr) {
        for (int i = 0; i < header->count(); ++i)
            texts << header->model()->headerData(i, header->orientation()).toString();
    }
    for (const QAction* action : widget.actions()) texts << action->text() << action->toolTip();
}

// What shows and is not marked, once each.
std::set<std::string> Unmarked(QWidget& window, const cLocaleForms& forms) {
    QStringList texts;
    AddTextsOf(window, texts);
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        // A part of the toolkit's own.
        const bool isPart = widget->objectName().startsWith("qt_") || widget->parent()->inherits("QTabBar");
        if (!isPart) AddTextsOf(*widget, texts);
    }
    std::set<std::string> unmarked;
    for (const QString& text : texts) {
        if (!text.contains('<') && !IsOfTheInstallation(text, forms)) unmarked.insert(text.toStdString());
    }
    return unmarked;
}

TEST(Translations, NothingThatShowsGoesPastThem) {
    std::set<std::string> lacking;
    cEditorPages pages(std::make_unique<cMarks>(lacking));
    pages.ForEach([&](const std::string& name) {
        EXPECT_EQ(Unmarked(pages.Window(), pages.Bench().m_Forms), std::set<std::string>{}) << name;
    });
    EXPECT_EQ(lacking, std::set<std::string>{});
}

// Notes what the toolkit asks for in its own dialogs.
class cListener : public QTranslator {
  public:
    explicit cListener(std::set<std::pair<std::string, std::string>>& asked) : m_Asked(asked) {}
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override {
        m_Asked.emplace(context, source);
        return {};
    }

  private:
    std::set<std::pair<std::string, std::string>>& m_Asked;
};

// The toolkit has no file of these two languages.
TEST(Translations, HoldWhatTheToolkitSaysInItsDialogsWhereItsOwnFilesLackThat) {
    std::set<std::pair<std::string, std::string>> asked;
    cListener listener(asked);
    QCoreApplication::installTranslator(&listener);
    {
        QFileDialog files;
        files.setOption(QFileDialog::DontUseNativeDialog);
        files.setAcceptMode(QFileDialog::AcceptSave);
        files.show();
        QFileDialog opened;
        opened.setOption(QFileDialog::DontUseNativeDialog);
        opened.setDirectory(VIGREL_TRANSLATIONS);
        opened.show();
        QColorDialog colours;
        colours.show();
        QTest::qWait(200);
    }
    QCoreApplication::removeTranslator(&listener);
    EXPECT_GT(asked.size(), 40u);
    for (const char* language : {"046", "047"}) {
        const cEditorWords words(language);
        cToolkitWords buttons;
        buttons.SetLanguage(language);
        for (const auto& [context, source] : asked) {
            // Keys, and their names as keyboards have them; what is no text.
            if (source.starts_with("Alt+") || context == "QShortcut" || context == "QGuiApplication")
                continue;
            EXPECT_FALSE(words.translate(context.c_str(), source.c_str()).isEmpty() &&
                         buttons.translate(context.c_str(), source.c_str()).isEmpty())
                << language << " " << context << ": " << source;
        }
    }
}

// The letters by which Alt reaches something, in the order of the texts.
void AddKey(const QString& text, const QString& what, std::map<QString, QStringList>& keys) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (!key.isEmpty()) keys[key.toString()] << what;
}

// The letters that reach more than one thing.
std::string Clashes(const std::map<QString, QStringList>& keys) {
    QString clashes;
    for (const auto& [key, texts] : keys) {
        if (texts.size() > 1) clashes += key + ": " + texts.join(", ") + "\n";
    }
    return clashes.toStdString();
}

std::string ClashesOfMenu(const QWidget& menu) {
    std::map<QString, QStringList> keys;
    for (const QAction* action : menu.actions()) AddKey(action->text(), action->text(), keys);
    return Clashes(keys);
}

// Of all that Alt reaches while a page shows: the menus, and the page's fields and buttons.
std::string ClashesOfWindow(QMainWindow& window) {
    std::map<QString, QStringList> keys;
    for (const QAction* action : window.menuBar()->actions()) AddKey(action->text(), action->text(), keys);
    for (QWidget* widget : window.centralWidget()->findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
            AddKey(label->text(), label->text(), keys);
        if (auto* button = qobject_cast<QAbstractButton*>(widget))
            AddKey(button->text(), button->text(), keys);
    }
    return Clashes(keys);
}

TEST(AccessKeys, ReachOneThingEachInEveryLanguage) {
    for (const char* language : kLanguages) {
        cEditorPages pages(language);
        pages.ForEach([&](const std::string& name) {
            const std::string where = language + (", " + name);
            EXPECT_EQ(ClashesOfWindow(pages.Window()), "") << where;
            for (const QMenu* menu : pages.Window().findChildren<QMenu*>()) {
                EXPECT_EQ(ClashesOfMenu(*menu), "") << where;
            }
        });
    }
}

// --- keys of entries

using KeyOwners = std::map<QString, std::set<QString>>;

void AddKeysOf(const QAction& action, KeyOwners& owners) {
    for (const QKeySequence& key : action.shortcuts()) owners[key.toString()].insert(action.objectName());
}

// What the keys start while a widget has the keyboard: the entries of the window, and those of all that the
// widget lies in.
KeyOwners KeysAt(const QWidget& widget) {
    KeyOwners owners;
    for (const QAction* action : widget.window()->findChildren<QAction*>()) {
        if (action->shortcutContext() == Qt::WindowShortcut) AddKeysOf(*action, owners);
    }
    for (const QWidget* around = &widget; around != nullptr; around = around->parentWidget()) {
        for (const QAction* action : around->actions()) AddKeysOf(*action, owners);
    }
    return owners;
}

// --- names of days and months

TEST(EditorForms, HaveTheNamesOfTheStationInTheOrderOfTheDesktop) {
    const cLocaleForms forms = FormsIn("049", QLocale("en_US"));
    EXPECT_EQ(forms.dayNames[1], "Montag");
    EXPECT_EQ(forms.monthNames[2], "M\xE4rz");
    EXPECT_EQ(forms.shortMonthNames[9].substr(0, 3), "Okt");
    EXPECT_EQ(forms.shortDayNames[0].substr(0, 2), "So");
    EXPECT_EQ(forms.shortDate, cQtLocale(QLocale("en_US")).Forms().shortDate);
    EXPECT_EQ(forms.firstDayOfWeek, 1);
    // One that writes no language, such as that of a service, speaks the station's.
    EXPECT_EQ(FormsIn("044", QLocale::c()).dayNames[1], "Monday");
    EXPECT_EQ(FormsIn("046", QLocale::c()).dayNames[1], "m\xE5ndag");
    EXPECT_EQ(FormsIn("047", QLocale("sv_SE")).dayNames[0], "s\xF8ndag");
}

TEST(EditorForms, OfTheDesktopAreKeptWhereItSpeaksTheStationsLanguage) {
    EXPECT_EQ(FormsIn("049", QLocale("de_AT")).monthNames[0], "J\xE4nner");
    EXPECT_EQ(FormsIn("049", QLocale("de_DE")).monthNames[0], "Januar");
    // A language that isn't delivered: the desktop's.
    EXPECT_EQ(FormsIn("033", QLocale("fr_FR")).dayNames[1], "lundi");
}

// A key of two entries starts neither of them.
std::set<std::string> KeysOfTwo(QWidget& page) {
    std::set<std::string> clashes;
    for (const QWidget* widget : page.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus) continue;
        for (const auto& [key, owners] : KeysAt(*widget)) {
            if (owners.size() < 2) continue;
            const QStringList names(owners.begin(), owners.end());
            clashes.insert((key + ": " + names.join(", ")).toStdString());
        }
    }
    return clashes;
}

TEST(KeysOfEntries, StartOneThingEachWhereverTheKeyboardIs) {
    cEditorPages pages("044");
    pages.ForEach([&](const std::string& name) {
        EXPECT_EQ(KeysOfTwo(pages.Window()), std::set<std::string>{}) << name;
    });
}

}  // namespace
}  // namespace vigrel::testing
