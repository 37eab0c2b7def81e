#pragma once

#include <QWidget>
#include <utility>
#include <vector>

namespace vigrel {

// The 24 hours of a day as a line as wide as there is room, with what is active on it and a mark at one
// minute.
class cDayLine : public QWidget {
    Q_OBJECT
  public:
    explicit cDayLine(QWidget* parent = nullptr);

    // Minutes of the day; from the first of each pair on, up to the second.
    void Show(std::vector<std::pair<int, int>> periods, int minute);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double XOf(int minute) const;

    std::vector<std::pair<int, int>> m_Periods;
    int m_Minute = 0;
};

}  // namespace vigrel
