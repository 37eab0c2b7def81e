#pragma once

namespace vigrel {

// The layout of the view of a time schedule, in units of the drawing.
inline constexpr int kAxisLeft = 30;
inline constexpr int kAxisWidth = 288;  // 24 hours
inline constexpr int kUnitsPerHour = 12;
inline constexpr int kMinutesPerUnit = 5;
inline constexpr int kRowHeight = 25;
inline constexpr int kBarTop = 4;  // inside a row
inline constexpr int kBarHeight = 15;
inline constexpr int kVisibleRows = 7;
inline constexpr int kScrollStepsPerRow = 4;

}  // namespace vigrel
