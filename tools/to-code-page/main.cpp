// Converts a UTF-8 text file to code page 1252 with CR LF line ends: to-code-page SOURCE TARGET.
// The station reads its configuration and texts in that form; their sources are kept in UTF-8.

#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>

#include "to-code-page/convert.h"

namespace {

std::optional<std::string> ReadAll(const char* path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool WriteAll(const char* path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.close();
    return !file.fail();
}

int Fail(const std::string& message) {
    std::cerr << message << '\n';
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return Fail("usage: to-code-page SOURCE TARGET");
    const std::optional<std::string> source = ReadAll(argv[1]);
    if (!source) return Fail(std::string(argv[1]) + ": can't be read");
    if (const auto misfit = vigrel::FindMisfit(*source)) {
        return Fail(std::string(argv[1]) + ":" + std::to_string(misfit->line) + ":" +
                    std::to_string(misfit->column) + ": \"" + misfit->character +
                    "\" has no place in code page 1252");
    }
    if (!WriteAll(argv[2], vigrel::ToCodePageLines(*source))) {
        return Fail(std::string(argv[2]) + ": can't be written");
    }
    return 0;
}
