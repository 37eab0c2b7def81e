#pragma once

#include "vigrel-report/page/words.h"

namespace vigrel::report {

inline constexpr eLanguage kAllLanguages[] = {eLanguage::English, eLanguage::Swedish,   eLanguage::German,
                                              eLanguage::Danish,  eLanguage::Norwegian, eLanguage::Finnish};

}  // namespace vigrel::report
