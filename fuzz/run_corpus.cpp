// Runs one fuzz target over the files of a folder: what a fuzzer has found stays found in builds that have no
// fuzzer.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "fuzz/fuzz_target.h"

namespace {

void RunFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    // Named in front of the run, so that the last line tells the input of a crash.
    std::cout << path.filename().string() << ", " << bytes.size() << " bytes" << std::endl;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: " << arguments[0] << " FOLDER\n";
        return 2;
    }
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    for (const auto& file : files) RunFile(file);
    if (files.empty()) std::cerr << arguments[1] << ": no inputs\n";
    return files.empty() ? 1 : 0;
}
