#pragma once

#include <QString>
#include <cstddef>
#include <functional>

#include "adapters/qt/qt_text.h"
#include "definitions/definition_folder.h"

namespace vigrel {

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

    // The position of the added one.
    virtual std::size_t Add(const QString& wishedName) = 0;
    virtual std::size_t AddCopy(std::size_t position) = 0;
    // False on failure, of which the notes of the services tell.
    virtual bool Save(std::size_t position) = 0;
    virtual bool Remove(std::size_t position) = 0;
    virtual bool Revert(std::size_t position) = 0;
};

template <class Definition>
class cFolderSource : public cDefinitionSource {
  public:
    using DetailsOf = std::function<QString(const Definition&)>;
    // The folder must outlive the source.
    cFolderSource(cDefinitionFolder<Definition>& folder, DetailsOf details)
        : m_Folder(folder), m_Details(std::move(details)) {}

    std::size_t Count() const override { return m_Folder.Count(); }
    QString Name(std::size_t position) const override { return ToQString(NameOf(m_Folder.At(position))); }
    QString Details(std::size_t position) const override { return m_Details(m_Folder.At(position)); }
    bool Enabled(std::size_t position) const override { return m_Folder.At(position).m_Enabled != False16; }
    int Identity(std::size_t position) const override { return m_Folder.At(position).m_DiskIdentity; }
    bool HasChanges(std::size_t position) const override {
        return m_Folder.At(position).HasChangedSinceLastLoadFromDisk();
    }
    std::size_t Add(const QString& wishedName) override {
        return m_Folder.Add(m_Folder.FreeName(FromQString(wishedName)));
    }
    std::size_t AddCopy(std::size_t position) override {
        return m_Folder.AddCopy(position, m_Folder.FreeName(NameOf(m_Folder.At(position))));
    }
    bool Save(std::size_t position) override { return m_Folder.Save(position); }
    bool Remove(std::size_t position) override { return m_Folder.Remove(position); }
    bool Revert(std::size_t position) override { return m_Folder.Revert(position); }

  private:
    cDefinitionFolder<Definition>& m_Folder;
    DetailsOf m_Details;
};

}  // namespace vigrel
