#include "receiver_ui/list/key_codes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vigrel {
namespace {

constexpr std::array<std::pair<int, int>, 23> kCodes{{
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
    {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},   {Qt::Key_Menu, 93},
}};

bool Between(int key, int first, int last) {
    return key >= first && key <= last;
}

}  // namespace

int VirtualKeyCode(int qtKey, Qt::KeyboardModifiers modifiers) {
    if (Between(qtKey, Qt::Key_A, Qt::Key_Z)) return 65 + (qtKey - Qt::Key_A);
    if (Between(qtKey, Qt::Key_0, Qt::Key_9)) {
        const int firstDigit = modifiers.testFlag(Qt::KeypadModifier) ? 96 : 48;
        return firstDigit + (qtKey - Qt::Key_0);
    }
    if (Between(qtKey, Qt::Key_F1, Qt::Key_F24)) return 112 + (qtKey - Qt::Key_F1);
    const auto found =
        std::find_if(kCodes.begin(), kCodes.end(), [qtKey](const auto& code) { return code.first == qtKey; });
    return found == kCodes.end() ? 0 : found->second;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) + (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

}  // namespace vigrel
