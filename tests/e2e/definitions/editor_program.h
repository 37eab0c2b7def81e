#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "e2e/definitions/screen_picture.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {

// The real editor on an application folder of its own, with somebody at mouse and keyboard. Nothing that is
// done with it here has a reason to print: a line on its standard error fails the test.
class cEditorProgram {
  public:
    ~cEditorProgram();
    // Shows units of so many pixels.
    void Start(int zoom, const std::vector<std::string>& files = {});
    // The same on a screen that shows everything so many times as large.
    void StartScaled(int scale);
    // Waits for the program's own end; its exit code, -1 when it doesn't end in time.
    int WaitForEnd();
    // Waits until the window has the title.
    bool HasTitle(const std::string& title) const;
    void Keys(const std::vector<std::string>& keys) const;
    void Type(const std::string& text) const;
    // The window of a dialog; then it has the keyboard.
    bool EnterDialog(const std::string& title);
    // Types a path into the file dialog and accepts it.
    bool ChooseFile(const std::string& title, const std::string& path);
    std::string Path(const std::string& name) const { return (m_Folder.Path() / name).string(); }
    // Waits for a file of that size, and reads it.
    std::string File(const std::string& name, std::size_t size) const;

    std::string Bytes(const std::string& name) const;
    void Put(const std::string& name, const std::string& bytes) const;
    // The name of the only file in a folder; empty when there is none or another one.
    std::string OnlyFileIn(const std::string& folder) const;
    // Waits until a folder holds no file.
    bool BecomesEmpty(const std::string& folder) const;

    // Finds the axis of the schedule's first row on the screen.
    bool FindAxis();
    // The place of a minute in a row of the schedule.
    cPixelPlace At(int row, int minute) const;
    // Finds the grid of a calendar's month that isn't today's.
    bool FindGrid();
    // The place of a cell in that grid.
    cPixelPlace Cell(int column, int row) const;
    // Presses the left button at the first place and lets it go at the last.
    void Drag(const std::vector<cPixelPlace>& places) const;
    void RightClick(cPixelPlace place) const;

  private:
    void TakeSurroundings() const;

    cTemporaryFolder m_Folder, m_Runtime;
    pid_t m_Process = -1;
    int m_Zoom = 1, m_Scale = 1;
    std::string m_Window;  // that has the keyboard
    cPixelPlace m_Axis, m_FirstSunday;
};

}  // namespace vigrel::testing
