#pragma once

#include <QString>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/qt/qt_text.h"
#include "definitions/definition_folder.h"

namespace vigrel {

// A text that stands in a field and is no value of it, and why. It belongs to its definition, whichever one
// the form shows: as long as it stands there the definition differs from its file and can't be saved.
struct cTypedText {
    QString text, problem;
    bool operator==(const cTypedText&) const = default;
};
using TypedTexts = std::map<QString, cTypedText>;  // by the field's object name

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
    // What other programs did to its file.
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
    // to take it up.
    virtual bool HasNews() const = 0;
    virtual void Rescan() = 0;

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
          m_Typed(folder.Count()) {}

    TypedTexts& Typed(std::size_t position) { return m_Typed.at(position); }

    std::size_t Count() const override { return m_Folder.Count(); }
    QString Name(std::size_t position) const override { return ToQString(NameOf(m_Folder.At(position))); }
    QString Details(std::size_t position) const override { return m_Details(m_Folder.At(position)); }
    bool Enabled(std::size_t position) const override { return m_Folder.At(position).m_Enabled != False16; }
    int Identity(std::size_t position) const override { return m_Folder.At(position).m_DiskIdentity; }
    bool HasChanges(std::size_t position) const override {
        return !m_Typed.at(position).empty() || m_Folder.At(position).HasChangedSinceLastLoadFromDisk();
    }
    cFieldProblem Problem(std::size_t position) const override {
        const TypedTexts& typed = m_Typed.at(position);
        if (!typed.empty()) return {typed.begin()->second.problem, typed.begin()->first};
        return m_Problem(m_Folder.At(position));
    }
    eFileState StateOfFile(std::size_t position) const override { return m_Folder.StateOfFile(position); }
    const std::vector<cUnreadableFile>& Unreadable() const override { return m_Folder.Unreadable(); }

    std::size_t Add(const QString& wishedName) override {
        return Added(m_Folder.Add(m_Folder.FreeName(FromQString(wishedName))));
    }
    std::size_t AddCopy(std::size_t position) override {
        const TypedTexts typed = m_Typed.at(position);
        const std::string name = m_Folder.FreeName(NameOf(m_Folder.At(position)));
        const std::size_t copy = Added(m_Folder.AddCopy(position, name));
        m_Typed[copy] = typed;
        return copy;
    }
    std::optional<std::size_t> AddFromFile(std::size_t position) override {
        const auto added = m_Folder.AddFromFile(position);
        if (added) Added(*added);
        return added;
    }
    bool Save(std::size_t position) override { return m_Folder.Save(position); }
    bool Revert(std::size_t position) override {
        if (!m_Folder.Revert(position)) return false;
        if (m_Folder.Count() < m_Typed.size()) {
            m_Typed.erase(Place(position));
        } else {
            m_Typed[position].clear();
        }
        return true;
    }
    bool HasNews() const override {
        return m_Folder.HasNews([this](std::size_t position) { return HasChanges(position); });
    }
    void Rescan() override {
        m_Folder.Rescan([this](std::size_t position) { return HasChanges(position); });
        m_Typed.resize(m_Folder.Count());
    }

    RecordPtr Copy(std::size_t position) const override {
        return std::make_shared<cFolderRecord>(m_Folder.CopyOf(position), m_Typed.at(position),
                                               std::int16_t{-1}, std::nullopt);
    }
    bool AreSame(const cRecord& a, const cRecord& b) const override {
        return Of(a).content->HasSameContentAs(*Of(b).content) && Of(a).typed == Of(b).typed;
    }
    void Restore(std::size_t position, const cRecord& record) override {
        m_Folder.At(position).CopyFrom(*Of(record).content);
        m_Typed[position] = Of(record).typed;
    }
    RecordPtr TakeOut(std::size_t position) override {
        auto record =
            std::make_shared<cFolderRecord>(m_Folder.CopyOf(position), m_Typed.at(position),
                                            m_Folder.At(position).m_DiskIdentity, m_Folder.FileOf(position));
        if (!m_Folder.Remove(position)) return nullptr;
        m_Typed.erase(Place(position));
        return record;
    }
    bool BringBack(std::size_t position, const cRecord& record) override {
        const cFolderRecord& back = Of(record);
        m_Typed.insert(Place(position), back.typed);
        return m_Folder.BringBack(position, *back.content, back.identity, back.file);
    }

  private:
    struct cFolderRecord : cRecord {
        cFolderRecord(std::unique_ptr<Definition> definition, TypedTexts texts, std::int16_t number,
                      std::optional<std::string> bytes)
            : content(std::move(definition)),
              typed(std::move(texts)),
              identity(number),
              file(std::move(bytes)) {}
        std::unique_ptr<Definition> content;
        TypedTexts typed;
        std::int16_t identity;
        std::optional<std::string> file;
    };
    static const cFolderRecord& Of(const cRecord& record) {
        return dynamic_cast<const cFolderRecord&>(record);
    }
    auto Place(std::size_t position) { return m_Typed.begin() + static_cast<std::ptrdiff_t>(position); }
    std::size_t Added(std::size_t position) {
        m_Typed.resize(m_Folder.Count());
        return position;
    }

    cDefinitionFolder<Definition>& m_Folder;
    DetailsOf m_Details;
    ProblemOf m_Problem;
    std::vector<TypedTexts> m_Typed;  // by position
};

}  // namespace vigrel
