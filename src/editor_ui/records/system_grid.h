#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <vector>

#include "definitions/profile.h"

class QCheckBox;

namespace vigrel {

// The 64 system flags of a profile, eight in a row.
class cSystemGrid : public QWidget {
    Q_OBJECT
  public:
    explicit cSystemGrid(QWidget* parent = nullptr);

    void Show(const cProfile& profile);
    // One or several flags were set by the user; those not named stay as they are.
    std::function<void(const std::vector<std::int16_t>& indices, bool on)> OnEdited;

  private:
    void SetAll(bool on);

    std::array<QCheckBox*, cProfile::kSystems> m_Flags{};
};

}  // namespace vigrel
