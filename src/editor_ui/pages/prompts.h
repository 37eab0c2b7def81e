#pragma once

#include <QCoreApplication>
#include <QString>

class QPrinter;
class QWidget;

namespace vigrel {

// What the editor asks its operator. Every method waits for the answer.
class cPrompts {
  public:
    virtual ~cPrompts() = default;
    enum class eSave { Save, Discard, Cancel };
    virtual eSave AskToSave(QWidget* owner, const QString& title) = 0;
    enum class eConflict { Mine, Theirs, Both, Cancel };
    // Whose version counts of the file of what has that name, which others changed meanwhile, or whether both
    // are to be shown; when it is gone: whether it is written again (mine) or removed here as well (theirs).
    virtual eConflict AskConflict(QWidget* owner, const QString& name, bool isGone) = 0;
    virtual bool AskYesNo(QWidget* owner, const QString& question) = 0;
    virtual void ShowFailure(QWidget* owner, const QString& text) = 0;
    // Empty texts: the operator has cancelled.
    virtual QString AskOpenPath(QWidget* owner, const QString& folder, const QString& filter) = 0;
    virtual QString AskSavePath(QWidget* owner, const QString& path, const QString& filter,
                                const QString& suffix) = 0;
    virtual QString AskText(QWidget* owner, const QString& label, const QString& text) = 0;
    // Which printer and how; false: cancelled.
    virtual bool AskPrinter(QWidget* owner, QPrinter& printer) = 0;
};

// By dialogs.
class cDialogPrompts : public cPrompts {
    Q_DECLARE_TR_FUNCTIONS(cDialogPrompts)
  public:
    eSave AskToSave(QWidget* owner, const QString& title) override;
    eConflict AskConflict(QWidget* owner, const QString& name, bool isGone) override;
    bool AskYesNo(QWidget* owner, const QString& question) override;
    void ShowFailure(QWidget* owner, const QString& text) override;
    QString AskOpenPath(QWidget* owner, const QString& folder, const QString& filter) override;
    QString AskSavePath(QWidget* owner, const QString& path, const QString& filter,
                        const QString& suffix) override;
    QString AskText(QWidget* owner, const QString& label, const QString& text) override;
    bool AskPrinter(QWidget* owner, QPrinter& printer) override;
};

}  // namespace vigrel
