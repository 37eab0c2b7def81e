#include "link/frame.h"

#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {

std::string CalcChecksum(std::string_view text) {
    unsigned sum = 0;
    for (const char character : text) sum = (sum + static_cast<unsigned>(Code(character))) % 256;
    return LastDigits(HexText(sum), 2);
}

std::string MakeFrame(std::string_view sender, std::string_view second) {
    const std::string counted = std::string(sender) + kFieldSeparator + std::string(second);
    return kStx + counted + kFieldSeparator + CalcChecksum(counted) + kEtx + "\n";
}

}  // namespace vigrel
