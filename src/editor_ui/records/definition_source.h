#pragma once

#include <QString>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/qt/qt_text.h"
#include "definitions/definition_folder.h"
#include "editor_ui/pages/typed_texts.h"
#include "windows/short_text.h"

namespace vigrel {

// Why a definition can't be saved, and the field to mend; an empty text: it can.
struct cFieldProblem {
    QString text, field;
};

// A definition as it stood at a moment, for undo.
class cRecord {
  public:
    virtual ~cRecord() = default;
};
using RecordPtr = std::shared_ptr<const cRecord>;

// What another program saved took the place of a definition, or the definition went with its file.
struct cTakenUp {
    int position;
    QString name;  // that of before, shortened
    RecordPtr before;
    RecordPtr after;  // none for one that has gone
};

// The definitions of one kind as a page shows them, by position. Positions count from 0 and shift when one is
// removed.
class cDefinitionSource {
  public:
    virtual ~cDefinitionSource() = default;
    virtual std::size_t Count() const = 0;
    virtual QString Name(std::size_t position) const = 0;
    virtual QString Details(std::size_t position) const = 0;  // the second column of the list
    virtual bool Enabled(std::size_t position) const = 0;
    virtual int Identity(std::size_t position) const = 0;  // below 0: it has no file
    virtual bool HasChanges(std::size_t position) const = 0;
    virtual cFieldProblem Problem(std::size_t position) const = 0;
    // What other programs did to its file. Undo can bring back a content from before others changed it: that
    // counts as changed, too.
    virtual eFileState StateOfFile(std::size_t position) const = 0;
    virtual const std::vector<cUnreadableFile>& Unreadable() const = 0;

    // The position of the added one.
    virtual std::size_t Add(const QString& wishedName) = 0;
    virtual std::size_t AddCopy(std::size_t position) = 0;
    // A copy of what the file holds now; none when it can't be read.
    virtual std::optional<std::size_t> AddFromFile(std::size_t position) = 0;
    // False on failure, of which the notes of the services tell.
    virtual bool Save(std::size_t position) = 0;
    virtual bool Revert(std::size_t position) = 0;
    // What other programs did to the folder, but for definitions with changes: whether there is anything, and
    // to take it up. Each position is the one at its turn.
    virtual bool HasNews() const = 0;
    virtual std::vector<cTakenUp> Rescan() = 0;
    // What is to be done, as long as the source lives, when somebody else wants to see what the folder holds.
    virtual void SetTakeUp(std::function<void()> takeUp) = 0;
    // Gives up all changes.
    virtual void Reload() = 0;

    virtual RecordPtr Copy(std::size_t position) const = 0;
    virtual bool AreSame(const cRecord& a, const cRecord& b) const = 0;
    virtual void Restore(std::size_t position, const cRecord& record) = 0;
    // Takes one out, with its file when it has one; nothing, and it stays, when the file can't be removed.
    virtual RecordPtr TakeOut(std::size_t position) = 0;
    // The reverse, with the bytes that the file had. False when it comes back unsaved, since its file's name
    // is taken or can't be written.
    virtual bool BringBack(std::size_t position, const cRecord& record) = 0;
};

template <class Definition>
class cFolderSource : public cDefinitionSource {
  public:
    using DetailsOf = std::function<QString(const Definition&)>;
    using ProblemOf = std::function<cFieldProblem(const Definition&)>;
    // The folder must outlive the source.
    cFolderSource(cDefinitionFolder<Definition>& folder, DetailsOf details, ProblemOf problem)
        : m_Folder(folder),
          m_Details(std::move(details)),
          m_Problem(std::move(problem)),
          m_Marks(folder.Count()) {}

    TypedTexts& Typed(std::size_t position) { return m_Marks.at(position).typed; }

    std::size_t Count() const override { return m_Folder.Count(); }
    QString Name(std::size_t position) const override { return ToQString(NameOf(m_Folder.At(position))); }
    QString Details(std::size_t position) const override { return m_Details(m_Folder.At(position)); }
    bool Enabled(std::size_t position) const override { return m_Folder.At(position).m_Enabled != False16; }
    int Identity(std::size_t position) const override { return m_Folder.At(position).m_DiskIdentity; }
    bool HasChanges(std::size_t position) const override {
        return !m_Marks.at(position).typed.empty() || m_Folder.At(position).HasChangedSinceLastLoadFromDisk();
    }
    cFieldProblem Problem(std::size_t position) const override {
        const TypedTexts& typed = m_Marks.at(position).typed;
        if (!typed.empty()) return {typed.begin()->second.problem, typed.begin()->first};
        return m_Problem(m_Folder.At(position));
    }
    eFileState StateOfFile(std::size_t position) const override {
        const eFileState state = m_Folder.StateOfFile(position);
        return state == eFileState::Unchanged && !m_Marks.at(position).IsOfTheLatest() ? eFileState::Changed
                                                                                       : state;
    }
    const std::vector<cUnreadableFile>& Unreadable() const override { return m_Folder.Unreadable(); }

    std::size_t Add(const QString& wishedName) override {
        return Added(m_Folder.Add(m_Folder.FreeName(FromQString(wishedName))));
    }
    std::size_t AddCopy(std::size_t position) override {
        const TypedTexts typed = Typed(position);
        const std::string name = m_Folder.FreeName(NameOf(m_Folder.At(position)));
        const std::size_t copy = Added(m_Folder.AddCopy(position, name));
        Typed(copy) = typed;
        return copy;
    }
    std::optional<std::size_t> AddFromFile(std::size_t position) override {
        const auto added = m_Folder.AddFromFile(position);
        if (added) Added(*added);
        return added;
    }
    bool Save(std::size_t position) override {
        if (!m_Folder.Save(position)) return false;
        m_Marks[position].SetLatest();
        return true;
    }
    bool Revert(std::size_t position) override {
        const bool isChanged = m_Folder.StateOfFile(position) == eFileState::Changed;
        if (!m_Folder.Revert(position)) return false;
        if (m_Folder.Count() < m_Marks.size()) {
            m_Marks.erase(Place(position));
        } else {
            m_Marks[position].typed.clear();
            m_Marks[position].SetLatest();
            if (isChanged) m_Marks[position].TakeUp();
        }
        return true;
    }
    bool HasNews() const override {
        return m_Folder.HasNews([this](std::size_t position) { return HasChanges(position); });
    }
    std::vector<cTakenUp> Rescan() override {
        std::vector<cTakenUp> taken;
        m_Folder.Rescan([this](std::size_t position) { return HasChanges(position); },
                        [&](std::size_t position, std::unique_ptr<Definition> before, bool isGone) {
                            // Written anew as it was, it is no news.
                            if (!isGone && before->HasSameContentAs(m_Folder.At(position))) return;
                            const QString name = ShortName(ToQString(NameOf(*before)));
                            auto record = Record(std::move(before), m_Marks[position]);
                            if (isGone) {
                                record->identity = record->content->m_DiskIdentity;
                                m_Marks.erase(Place(position));
                            } else {
                                m_Marks[position].TakeUp();
                            }
                            taken.push_back({static_cast<int>(position), name, std::move(record),
                                             isGone ? nullptr : Copy(position)});
                        });
        m_Marks.resize(m_Folder.Count());
        return taken;
    }
    void SetTakeUp(std::function<void()> takeUp) override {
        m_TakeUp = std::make_shared<const std::function<void()>>(std::move(takeUp));
        m_Folder.SetEditor(m_TakeUp);
    }
    void Reload() override {
        m_Folder.Load();
        m_Marks.assign(m_Folder.Count(), {});
    }

    RecordPtr Copy(std::size_t position) const override {
        return Record(m_Folder.CopyOf(position), m_Marks.at(position));
    }
    bool AreSame(const cRecord& a, const cRecord& b) const override {
        return Of(a).content->HasSameContentAs(*Of(b).content) && Of(a).marks.typed == Of(b).marks.typed;
    }
    void Restore(std::size_t position, const cRecord& record) override {
        m_Folder.At(position).CopyFrom(*Of(record).content);
        m_Marks[position].typed = Of(record).marks.typed;
        m_Marks[position].ground = Of(record).marks.ground;
    }
    RecordPtr TakeOut(std::size_t position) override {
        auto record = Record(m_Folder.CopyOf(position), m_Marks.at(position));
        record->identity = m_Folder.At(position).m_DiskIdentity;
        record->file = m_Folder.FileOf(position);
        if (!m_Folder.Remove(position)) return nullptr;
        m_Marks.erase(Place(position));
        return record;
    }
    bool BringBack(std::size_t position, const cRecord& record) override {
        const cFolderRecord& back = Of(record);
        m_Marks.insert(Place(position), back.marks);
        return m_Folder.BringBack(position, *back.content, back.identity, back.file);
    }

  private:
    // What is known of a definition beside its fields.
    struct cMarks {
        TypedTexts typed;
        // How often the content of others took its place, and after which of these times it stands.
        int takeUps = 0, ground = 0;
        bool IsOfTheLatest() const { return ground == takeUps; }
        void SetLatest() { ground = takeUps; }
        void TakeUp() { ground = ++takeUps; }
    };
    struct cFolderRecord : cRecord {
        std::unique_ptr<Definition> content;
        cMarks marks;
        std::int16_t identity = -1;
        std::optional<std::string> file;
    };
    static std::shared_ptr<cFolderRecord> Record(std::unique_ptr<Definition> content, const cMarks& marks) {
        auto record = std::make_shared<cFolderRecord>();
        record->content = std::move(content);
        record->marks = marks;
        return record;
    }
    static const cFolderRecord& Of(const cRecord& record) {
        return dynamic_cast<const cFolderRecord&>(record);
    }
    auto Place(std::size_t position) { return m_Marks.begin() + static_cast<std::ptrdiff_t>(position); }
    std::size_t Added(std::size_t position) {
        m_Marks.resize(m_Folder.Count());
        return position;
    }

    cDefinitionFolder<Definition>& m_Folder;
    DetailsOf m_Details;
    ProblemOf m_Problem;
    std::vector<cMarks> m_Marks;  // by position
    std::shared_ptr<const std::function<void()>> m_TakeUp;
};

}  // namespace vigrel
