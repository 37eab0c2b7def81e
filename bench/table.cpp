#include "bench/table.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace vigrel::bench {
namespace {

constexpr double kWidth = 720, kHeight = 420, kLeft = 90, kRight = 40, kTop = 40, kBottom = 50;
constexpr std::array<const char*, 4> kColours{"#1f5fa8", "#b3441e", "#3c7a34", "#6b4c9a"};

std::string Text(double x, double y, const std::string& text, const char* anchor = "middle") {
    return "<text x=\"" + Number(x, 1) + "\" y=\"" + Number(y, 1) + "\" text-anchor=\"" + anchor + "\">" +
           text + "</text>\n";
}

// The largest coordinate of all curves, by the member.
double Largest(const std::vector<cCurve>& curves, double std::pair<double, double>::*member) {
    double largest = 1e-9;
    for (const cCurve& curve : curves) {
        for (const auto& point : curve.points) largest = std::max(largest, point.*member);
    }
    return largest;
}

// To what five steps divide into round numbers.
double RoundedUp(double largest) {
    const double power = std::pow(10, std::floor(std::log10(largest)));
    for (const double factor : {1.0, 1.5, 2.0, 3.0, 5.0, 7.5}) {
        if (largest <= factor * power) return factor * power;
    }
    return 10 * power;
}

struct cScale {
    double maxX, maxY;
    double X(double x) const { return kLeft + x / maxX * (kWidth - kLeft - kRight); }
    double Y(double y) const { return kHeight - kBottom - y / maxY * (kHeight - kTop - kBottom); }
};

std::string Axes(const cScale& scale) {
    std::string svg;
    for (int i = 0; i <= 5; ++i) {
        const double x = scale.maxX * i / 5;
        const double y = scale.maxY * i / 5;
        svg += "<line x1=\"" + Number(kLeft, 1) + "\" y1=\"" + Number(scale.Y(y), 1) + "\" x2=\"" +
               Number(kWidth - kRight, 1) + "\" y2=\"" + Number(scale.Y(y), 1) + "\" stroke=\"#ddd\"/>\n";
        svg += Text(kLeft - 8, scale.Y(y) + 4, Number(y, scale.maxY < 20 ? 1 : 0), "end");
        svg += Text(scale.X(x), kHeight - kBottom + 18, Number(x, 0));
    }
    return svg;
}

}  // namespace

std::string Number(double value, int digits, const std::string& unit) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", digits, value);
    return text.data() + (unit.empty() ? "" : " " + unit);
}

bool PrintTable(const std::vector<cLine>& lines) {
    bool all = true;
    std::printf("| %-58s | %-18s | %-18s | %-10s | %-14s | |\n|---|---|---|---|---|---|\n", "what", "today",
                "reference", "ratio", "target");
    for (const cLine& line : lines) {
        const std::string target = (line.atMost ? "at most " : "at least ") +
                                   Number(line.target, line.target < 10 ? 2 : 0, line.unit);
        const int digits = line.figure < 10 ? 2 : 0;
        std::printf("| %-58s | %-18s | %-18s | %-10s | %-14s | %s |\n", line.what.c_str(), line.today.c_str(),
                    line.reference.c_str(), Number(line.figure, digits, line.unit).c_str(), target.c_str(),
                    line.Met() ? "met" : "MISSED");
        all = all && line.Met();
    }
    std::fflush(stdout);
    return all;
}

double Median(std::vector<double> values) {
    return Percentile(std::move(values), 0.5);
}

double Percentile(std::vector<double> values, double share) {
    std::sort(values.begin(), values.end());
    const auto last = static_cast<double>(values.size() - 1);
    return values[static_cast<std::size_t>(std::lround(share * last))];
}

std::string Plot(const std::string& title, const std::string& across, const std::string& up,
                 const std::vector<cCurve>& curves) {
    const cScale scale{RoundedUp(Largest(curves, &std::pair<double, double>::first)),
                       RoundedUp(Largest(curves, &std::pair<double, double>::second))};
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 720 420\" font-family=\"sans-serif\" "
        "font-size=\"12\">\n<rect width=\"720\" height=\"420\" fill=\"white\"/>\n";
    svg += Text(kWidth / 2, 22, title) + Axes(scale) + Text(kWidth / 2, kHeight - 10, across);
    svg += "<g transform=\"rotate(-90 16 " + Number(kHeight / 2, 1) + ")\">" + Text(16, kHeight / 2, up) +
           "</g>\n";
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const std::string colour = kColours[i % kColours.size()];
        std::string points;
        for (const auto& [x, y] : curves[i].points)
            points += Number(scale.X(x), 1) + "," + Number(scale.Y(y), 1) + " ";
        svg += "<polyline fill=\"none\" stroke-width=\"2\" stroke=\"" + colour + "\" points=\"" + points +
               "\"/>\n";
        svg += "<g fill=\"" + colour + "\">" +
               Text(kLeft + 12, kTop + 16 + 16 * static_cast<double>(i), curves[i].name, "start") + "</g>\n";
    }
    return svg + "</svg>\n";
}

double Seconds(const std::function<void()>& steps) {
    const auto start = std::chrono::steady_clock::now();
    steps();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void PublishLatency(const char* what, const std::vector<double>& milliseconds) {
    if (milliseconds.empty()) return;
    std::printf("%-50s median %6.1f ms, 99 of 100 within %6.1f ms\n", what, Median(milliseconds),
                Percentile(milliseconds, 0.99));
}

}  // namespace vigrel::bench
