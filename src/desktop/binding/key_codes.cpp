#include "desktop/binding/key_codes.h"

#include <utility>

namespace quorrin {

namespace {

constexpr std::pair<int, int> kCodes[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},    {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16}, {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Escape, 27},   {Qt::Key_Space, 32}, {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},      {Qt::Key_Home, 36},  {Qt::Key_Left, 37},    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},  {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},
};
constexpr int kOther = 255;

}  // namespace

int keyCode(const QKeyEvent& event) {
    const int key = event.key();
    for (const auto& [qtKey, code] : kCodes) {
        if (qtKey == key) return code;
    }
    const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
    const bool figure = key >= Qt::Key_0 && key <= Qt::Key_9;
    return letter || figure ? key : kOther;
}

}  // namespace quorrin
