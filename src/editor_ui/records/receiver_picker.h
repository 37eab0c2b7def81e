#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "definitions/definition_folder.h"

class QListWidget;
class QMenu;
class QPushButton;

namespace vigrel {

// A list of receivers of a profile, chosen from the receivers of the station and put in order. A receiver
// that is no longer there, and an item that is no receiver's number, stay and are shown as such until they
// are removed.
class cReceiverPicker : public QWidget {
    Q_OBJECT
  public:
    // The folder must outlive the picker.
    cReceiverPicker(const char* objectName, const QString& name, const cReceiverFolder& receivers,
                    QWidget* parent = nullptr);

    // The list as its text form (definitions/receiver_list.h).
    void Show(const std::string& text);
    // The receivers of the station may be others by now.
    void Refresh();
    std::function<void(const std::string& text)> OnEdited;

  private:
    QWidget* MakeButtons();
    void FillMenu();
    void Fill(int current);
    void Add(const std::string& item);
    void Remove();
    void Move(int by);
    void Edited(int current);
    void UpdateButtons();
    bool Lists(std::int16_t identity) const;
    QString ItemName(const std::string& item) const;

    const cReceiverFolder& m_Receivers;
    std::vector<std::string> m_Items;
    QListWidget* m_List;
    QMenu* m_Menu;
    QPushButton *m_Add, *m_Remove, *m_Up, *m_Down;
};

}  // namespace vigrel
