#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vigrel::bench {

// One line of the table: what the system takes or does, what a bare reference does in the same run, the
// figure that the target is about (a ratio of the two, or an amount of its own), and the target.
struct cLine {
    std::string what, today, reference;
    double figure = 0;
    std::string unit;  // of the figure; empty for a ratio
    double target = 0;
    bool atMost = true;  // or at least

    bool Met() const { return atMost ? figure <= target : figure >= target; }
};

std::string Number(double value, int digits, const std::string& unit = "");
// Prints the table; whether every target is met.
bool PrintTable(const std::vector<cLine>& lines);

double Median(std::vector<double> values);
double Percentile(std::vector<double> values, double share);

// Tells the median and the 99th percentile in a line of their own, which no target judges.
void PublishLatency(const char* what, const std::vector<double>& milliseconds);

// A plot of curves over one axis as SVG.
struct cCurve {
    std::string name;
    std::vector<std::pair<double, double>> points;
};
std::string Plot(const std::string& title, const std::string& across, const std::string& up,
                 const std::vector<cCurve>& curves);

// Seconds that the steps take.
double Seconds(const std::function<void()>& steps);

}  // namespace vigrel::bench
