// Composes the delivered sounds: make-sounds FOLDER. Being computed, they need no binary file among the
// sources.

#include <iostream>
#include <string>

#include "common/failure.h"
#include "make-sounds/sounds.h"
#include "make-sounds/wave_file.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make-sounds FOLDER\n";
        return 2;
    }
    const std::string folder = argv[1];
    const auto failure = vigrel::CatchFailure([&] {
        for (const auto& [fileName, samples] : vigrel::DeliveredSounds()) {
            vigrel::WriteWave(folder + "/" + fileName, samples);
        }
    });
    if (!failure) return 0;
    std::cerr << failure->what() << '\n';
    return 1;
}
