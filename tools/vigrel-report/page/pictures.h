#pragma once

#include <string>

#include "vigrel-report/page/document.h"

namespace vigrel::report {

// Pictures as SVG for inside a page. Colours are the page's variables; each has a title for those who can't
// see it.

struct cTimePicture {
    std::string svg;
    Seconds bucket = kBin;  // time that a bar stands for; its height is the largest bin within
};
cTimePicture TimePicture(const cFigures& figures, const cForms& forms);
std::string SourcesPicture(const cFigures& figures, const cAlarmNames& names, const cForms& forms);
std::string AnswersPicture(const cFigures& figures, const cForms& forms);
std::string HoursPicture(const cFigures& figures, const cSettings& settings, const cForms& forms);
std::string StalePicture(const cFigures& figures, const cForms& forms);

}  // namespace vigrel::report
