#pragma once

namespace vigrel {

// The layout of the month grid, in units of the drawing.
inline constexpr int kGridLeft = 30;
inline constexpr int kGridTop = 20;
inline constexpr int kCellWidth = 40;
inline constexpr int kCellHeight = 25;
inline constexpr int kGridColumns = 7;
inline constexpr int kGridRows = 6;
inline constexpr int kGridRight = kGridLeft + kGridColumns * kCellWidth;
inline constexpr int kGridBottom = kGridTop + kGridRows * kCellHeight;
// The box of a day inside its cell.
inline constexpr int kBoxOffset = 2;
inline constexpr int kBoxWidth = 37;
inline constexpr int kBoxHeight = 22;

}  // namespace vigrel
