#pragma once

#include <QPointer>
#include <QTimer>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "editor_ui/editor_bench.h"

namespace vigrel::campaign {

class cOthers;

struct cFigures {
    int sessions = 0, presses = 0, keys = 0, entries = 0, boxes = 0, steps = 0;
    int theirs = 0, questions = 0;  // what others did, and what was asked meanwhile
    int changed = 0;                // sessions that left the content another one before it was undone
};

// One editor over files in memory with one page open, and somebody who presses at random. The same seed does
// the same.
class cSession {
  public:
    // The pages by their names: "schedule", "calendar", "colours", "holidays", "receivers",
    // "profiles".
    cSession(const std::string& page, std::uint32_t seed, cFigures& figures);

    // Does as much, undoes all of it, does it again and undoes it again. Throws when the page's content is
    // not the first one, byte for byte, after either.
    void Run(int actions);
    // Does as much while another program works on the same files, and the page is left and seen again. Throws
    // when what the other one saved is lost without a question about that file.
    void RunWithOthers(int actions);

  private:
    void PutFiles();
    void OpenPage();
    void Act();
    void Press();
    void TypeKey();
    void ChooseEntry();
    void CloseBoxes();
    void Settle();
    void NoteQuestion(cOthers& others);
    // One that was let go with its file opens anew, and what is shown beside it closes.
    void ComeToPage(cOthers& others);
    void UndoAll();
    void RedoAll();
    void Expect(const std::string& content, const std::string& when);
    // Of every file that the page can write, as it would write it now.
    std::string Content();
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_Random); }
    template <class T>
    const T& AnyOf(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
    }

    std::mt19937 m_Random;
    cFigures& m_Figures;
    testing::cEditorBench m_Bench;
    std::string m_PageName;
    QPointer<cEditorPage> m_Page;
    QString m_LeftAlone;  // object name of a field that gets no keys
    QTimer m_Closer;      // of boxes and menus that wait for an answer
};

}  // namespace vigrel::campaign
