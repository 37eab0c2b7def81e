#pragma once

#include <QWidget>
#include <string>
#include <utility>
#include <vector>

#include "categories/user_color.h"
#include "editor_ui/pages/editor_services.h"
#include "events/alarm.h"

class QComboBox;
class QLabel;
class QTableWidget;

namespace vigrel {

// The newest of the folder's own alarms, the newest on top, in the colours that the rules give them. Which of
// its texts is an alarm's tag, the user says; an alarm whose category is a number has that one, and any other
// the category to try, as all have the area to try.
class cAlarmPreview : public QWidget {
    Q_OBJECT
  public:
    explicit cAlarmPreview(cEditorServices& services, QWidget* parent = nullptr);

    bool IsEmpty() const { return m_Alarms.empty(); }
    // Reads the alarms again when there are others by now.
    void LookAgain();
    void Show(const std::vector<cUserColor>& rules, int category, int area);

  private:
    struct cRow {
        DateTime created;
        std::vector<std::string> texts;
    };
    using StampedNames = std::vector<std::pair<cFileReader::cStamp, std::string>>;
    std::string Folder() const { return m_Services.m_Ini.FullPath("Alarms\\"); }
    StampedNames FilesOfAlarms() const;
    void Read();
    void Fill();
    void FillRow(int row);
    int CategoryOf(const cRow& alarm) const;

    cEditorServices& m_Services;
    StampedNames m_Files;  // as they were when the alarms were read
    std::vector<cRow> m_Alarms;
    std::vector<cUserColor> m_Rules;
    int m_Category = 0, m_Area = 0;
    QComboBox* m_Tag;
    QTableWidget* m_Table;
    QLabel* m_Count;
};

}  // namespace vigrel
